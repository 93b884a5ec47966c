#pragma once
// Objects that an order can contain; rows are known by their key.
#include "catalogues/ListaSimple.h"

namespace nomencla {

class frmLsContenido : public ListaSimple {
    Q_OBJECT
public:
    frmLsContenido();
    static const DatosListaSimple& datos();
};

} // namespace nomencla
