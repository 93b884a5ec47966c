#pragma once
// Article categories. No table of its own is known: it keeps the cities' statements and messages unchanged.
#include "catalogues/ListaSimple.h"

namespace nomencla {

class frmCategArticulos : public ListaSimple {
    Q_OBJECT
public:
    frmCategArticulos();
    static const DatosListaSimple& datos();
};

} // namespace nomencla
