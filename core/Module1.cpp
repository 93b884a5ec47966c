#include "core/Module1.h"

#include "core/Formulario.h"
#include "core/clsGrillas.h"
#include "core/clsServicios.h"

#include <QApplication>

namespace nomencla {

Module1::Module1() = default;

Module1::~Module1()
{
    // Dialogs can only be destroyed while the application object lives; at
    // the very end of the process the system reclaims them.
    if (QApplication::instance() != nullptr) {
        for (auto& [tipo, dialogo] : dialogos_)
            delete dialogo.data();
    }
}

clsServicios& Module1::servicios()
{
    if (!Servicios)
        Servicios = std::make_unique<clsServicios>();
    return *Servicios;
}

clsGrillas& Module1::grillas()
{
    if (!Grillas)
        Grillas = std::make_unique<clsGrillas>();
    return *Grillas;
}

clsServicios& Module1::serviciosApp()
{
    if (!ServiciosApp)
        ServiciosApp = std::make_unique<clsServicios>();
    return *ServiciosApp;
}

Module1& M()
{
    static thread_local Module1 estado;
    return estado;
}

} // namespace nomencla
