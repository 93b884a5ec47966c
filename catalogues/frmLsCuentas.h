#pragma once
// Accounts of the company; the twin of the contracts, but Esc closes it from
// any control. A removal only marks them inactive.
#include "catalogues/ListaNombrada.h"

namespace nomencla {

class frmLsCuentas : public ListaNombrada {
    Q_OBJECT
public:
    frmLsCuentas();
    static const DatosListaNombrada& datos();
};

} // namespace nomencla
