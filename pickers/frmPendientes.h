#pragma once
// Not built yet: a placeholder dialog that only shows its caption.
#include "core/Formulario.h"

namespace nomencla {

class frmPendientes : public Formulario {
    Q_OBJECT
public:
    frmPendientes();

protected:
    void Disenar(QWidget* lienzo) override;
};

} // namespace nomencla
