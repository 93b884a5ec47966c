#pragma once
// Not built yet: a placeholder dialog that only shows its caption.
#include "core/Formulario.h"

namespace nomencla {

class frmSubProveedor : public Formulario {
    Q_OBJECT
public:
    frmSubProveedor();

protected:
    void Disenar(QWidget* lienzo) override;
};

} // namespace nomencla
