#pragma once
// Contract numbers of the company; a removal only marks them inactive.
#include "catalogues/ListaNombrada.h"

namespace nomencla {

class frmLsContratos : public ListaNombrada {
    Q_OBJECT
public:
    frmLsContratos();
    static const DatosListaNombrada& datos();
};

} // namespace nomencla
