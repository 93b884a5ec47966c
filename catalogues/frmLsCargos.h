#pragma once
// The employees' positions; the database gives the key.
#include "catalogues/ListaCodificada.h"

namespace nomencla {

class frmLsCargos : public ListaCodificada {
    Q_OBJECT
public:
    frmLsCargos();
    static const DatosListaCodificada& datos();
};

} // namespace nomencla
