#pragma once
// Not built yet: a placeholder dialog that only shows its caption.
#include "core/Formulario.h"

namespace nomencla {

class frmLsZona : public Formulario {
    Q_OBJECT
public:
    frmLsZona();

protected:
    void Disenar(QWidget* lienzo) override;
};

} // namespace nomencla
