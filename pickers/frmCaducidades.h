#pragma once
// Choice of one lot of an article: the host may narrow the list to a class of
// lots and a warehouse; the user narrows it by the start of the lot number and
// the expiry date, and may show lots with nothing on hand. Enter or a double
// click on a row leaves its key in M().ValorDocumento; Esc leaves 0.
#include "core/Formulario.h"

#include <QVariantList>

namespace nomencla {

class Alfarje;
class CajaTexto;
class Casilla;
class SelectorFecha;

class frmCaducidades : public Formulario {
    Q_OBJECT
public:
    frmCaducidades();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;

private:
    // A piece of a WHERE clause with the values its placeholders take.
    struct Filtro {
        QString sql;
        QVariantList valores;
    };
    qint32 ArticuloElegido = 0;
    Filtro FiltroBase; // lot class and warehouse, built once at load

    CajaTexto* Text1 = nullptr;
    Casilla* Chk[2] = {};
    SelectorFecha* DT = nullptr;
    Alfarje* GR = nullptr;
    void CargarLista();
    void GR_Click();
};

} // namespace nomencla
