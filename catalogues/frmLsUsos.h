#pragma once
// Uses or applications of the articles.
#include "catalogues/ListaSimple.h"

namespace nomencla {

class frmLsUsos : public ListaSimple {
    Q_OBJECT
public:
    frmLsUsos();
    static const DatosListaSimple& datos();
};

} // namespace nomencla
