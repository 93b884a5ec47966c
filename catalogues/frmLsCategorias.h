#pragma once
// The company's customer categories, numbered by the dialog per company.
#include "catalogues/ListaCodificada.h"

namespace nomencla {

class frmLsCategorias : public ListaCodificada {
    Q_OBJECT
public:
    frmLsCategorias();
    static const DatosListaCodificada& datos();
};

} // namespace nomencla
