#pragma once
// The company's units of measure or presentation: a name and its
// abbreviation, added and removed like the plain-name lists. Articles point at
// a unit by its abbreviation.
#include "catalogues/ListaSimple.h"

namespace nomencla {

class frmMedidas : public ListaSimple {
    Q_OBJECT
public:
    frmMedidas();
    static const DatosListaSimple& datos();
};

} // namespace nomencla
