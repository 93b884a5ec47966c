#pragma once
// What assistive technology (a screen reader, UI automation) sees of the grid:
// a table of the columns on screen only, in their order on screen, named by
// the caption that stands over the grid; titles written with their letters
// spaced out are read as words; 0/1 flag cells are check boxes with their
// state; Enter or the cell's press action picks the row as a double click
// does; the totals line, when shown, is a row of texts after the cells.
#include <QString>

class QItemSelection;
class QModelIndex;

namespace nomencla {

class Alfarje;

// Registers the interfaces with Qt's accessibility; the grid calls it once.
void instalarAccesibilidadAlfarje();

// What the grid tells assistive technology when its current cell or its
// selection changes, in the terms of the table above.
void avisarFocoAlfarje(Alfarje* grilla, const QModelIndex& actual);
void avisarSeleccionAlfarje(Alfarje* grilla, const QItemSelection& elegidas, const QItemSelection& dejadas);

// The title as a screen reader should say it: "C I U D A D" -> "CIUDAD",
// "F E C H A  F E R I A D O" -> "FECHA FERIADO"; other titles unchanged.
QString tituloHablado(const QString& titulo);

// A caption as it is said: without its '&' marks ("&&" is one '&'), trimmed.
QString sinAcelerador(QString texto);

} // namespace nomencla
