#pragma once
// Country names of the company; a removal deletes the row. Also opened over
// the lot capture dialog, which reads HuboCambios as the public method does.
#include "catalogues/ListaNombrada.h"

namespace nomencla {

class frmLsPaises : public ListaNombrada {
    Q_OBJECT
public:
    frmLsPaises();
    static const DatosListaNombrada& datos();
};

} // namespace nomencla
