#pragma once
// The company's departments, where its employees work.
#include "catalogues/ListaSimple.h"

namespace nomencla {

class frmLsDepartam : public ListaSimple {
    Q_OBJECT
public:
    frmLsDepartam();
    static const DatosListaSimple& datos();
};

} // namespace nomencla
