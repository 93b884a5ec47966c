#pragma once
// The tax supports of the SRI, by their SRI code; the database gives the key.
#include "catalogues/ListaCodificada.h"

namespace nomencla {

class frmLsSustentos : public ListaCodificada {
    Q_OBJECT
public:
    frmLsSustentos();
    static const DatosListaCodificada& datos();
};

} // namespace nomencla
