#pragma once
// What a screen reader needs of a dialog beyond what each control tells by
// itself, set up once per opening for every dialog:
// - every control that takes the focus has a name: its caption, the caption
//   linked to it, the caption it stands behind in its row, or the words of
//   its tooltip;
// - the mode banner (Label2) is the description of the dialog, said with its
//   title when the focus comes into it, and a change of mode is announced
//   (a notification "Label2.anuncio" shows with the new mode).
#include <QList>

class QWidget;

namespace nomencla {

void prepararAccesibilidad(QWidget* dialogo, QWidget* lienzo);

// The controls of `lienzo` that the clerk reaches with Tab, as the tests see them.
QList<QWidget*> controlesEnfocables(QWidget* lienzo);

} // namespace nomencla
