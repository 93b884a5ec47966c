#pragma once
// The documents that the SRI authorises, by their SRI code; the database gives the key.
#include "catalogues/ListaCodificada.h"

namespace nomencla {

class frmLsDocAutSRI : public ListaCodificada {
    Q_OBJECT
public:
    frmLsDocAutSRI();
    static const DatosListaCodificada& datos();
};

} // namespace nomencla
