#pragma once
// Components of the articles.
#include "catalogues/ListaSimple.h"

namespace nomencla {

class frmLsComponente : public ListaSimple {
    Q_OBJECT
public:
    frmLsComponente();
    static const DatosListaSimple& datos();
};

} // namespace nomencla
