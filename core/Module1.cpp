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

namespace {

// The state lives on the heap: a pointer that needs no construction nor
// destruction can be read at any moment of the thread's life, also after the
// state is gone, and a late use shows up as what it is.
thread_local Module1* estado = nullptr;

// Destroys the state at the thread's exit. It is created at the state's first
// use, so it goes after every thread-local object created later (the
// application object among them).
struct Dueno {
    Dueno() = default;
    Dueno(const Dueno&) = delete;
    Dueno& operator=(const Dueno&) = delete;
    ~Dueno()
    {
        delete estado; // the dialogs closing inside still find their state
        estado = nullptr;
    }
};

} // namespace

Module1& M()
{
    if (estado == nullptr) {
        static thread_local Dueno dueno;
        estado = new Module1;
    }
    return *estado;
}

Module1* estadoSiExiste()
{
    return estado;
}

} // namespace nomencla
