#pragma once
// The documents that the host kept without saving, of one kind (purchases or
// sales), read from the host's second store. Enter or a double click hands
// back the document's reference code; Esc or the close box hand back 0.
#include "core/Formulario.h"

namespace nomencla {

class Alfarje;

class frmPendientes : public Formulario {
    Q_OBJECT
public:
    frmPendientes();

protected:
    void Disenar(QWidget* lienzo) override;
    void Form_Load() override;
    void Form_KeyPress(int& KeyAscii) override;

private:
    Alfarje* GR = nullptr;
    void Elegir();
};

} // namespace nomencla
