#pragma once
// The company's cities.
#include "catalogues/ListaSimple.h"

namespace nomencla {

class frmLsCiudad : public ListaSimple {
    Q_OBJECT
public:
    frmLsCiudad();
    static const DatosListaSimple& datos();
};

} // namespace nomencla
