#pragma once
// Which print model to use for a kind of document: the models of the kind in
// a list, Enter, Esc or the button take the one shown. Without models the
// dialog closes by itself and the answer is 0.
#include "core/Formulario.h"

namespace nomencla {

class Combo;

class frmImpresion : public Formulario {
    Q_OBJECT
public:
    frmImpresion();

    // The kind of document for a value of the enumeration; any other value
    // counts as the invoice's.
    static qint32 claseDocumento(qint32 valor);

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    void Form_Activate() override;
    void Form_KeyPress(int& KeyAscii) override;

private:
    Combo* Cmb = nullptr;
};

} // namespace nomencla
