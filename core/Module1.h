#pragma once
// The shared state of the library, one set per thread: what a method stores
// for its dialog, what the dialog leaves for the method, the shared service
// objects and the single instance of each dialog.
#include <nomencla/clsNomencla.h>

#include <QPointer>
#include <QSqlDatabase>
#include <QString>
#include <memory>
#include <typeindex>
#include <unordered_map>

namespace nomencla {

class clsServicios;
class clsGrillas;
class Formulario;

struct Module1 {
    bool HuboCambios = false;
    QSqlDatabase Conexion;
    QSqlDatabase ConexionAcces;
    qint32 CodigoProveedor = 0;
    QString NombreEmpresa;
    qint32 ValorDocumento = 0;
    qint32 ModeloImpresion = 0;
    InfoLotes LoteCapturado;
    qint16 TipoPendiente = 0;
    QString IdEmp;
    std::unique_ptr<clsServicios> Servicios;
    std::unique_ptr<clsGrillas> Grillas;
    std::unique_ptr<clsServicios> ServiciosApp;
    qint32 TipoLoteElegido = 0;
    qint32 BodegaElegida = 0;

    Module1();
    ~Module1();
    Module1(const Module1&) = delete;
    Module1& operator=(const Module1&) = delete;

    // The shared services, created when first found empty.
    clsServicios& servicios();
    clsGrillas& grillas();
    clsServicios& serviciosApp();

    // The dialog's single instance on this thread, created at first use.
    template <class F> F& instancia()
    {
        QPointer<Formulario>& ranura = dialogos_[std::type_index(typeid(F))];
        if (!ranura)
            ranura = new F();
        return static_cast<F&>(*ranura);
    }

    // Whether the dialog's instance exists already.
    template <class F> bool existe() const
    {
        const auto it = dialogos_.find(std::type_index(typeid(F)));
        return it != dialogos_.end() && !it->second.isNull();
    }

private:
    std::unordered_map<std::type_index, QPointer<Formulario>> dialogos_;
};

// This thread's shared state, created at first use. It is destroyed at the
// thread's exit after every thread-local object created after that first use
// (thread-local objects go in the reverse order of their creation).
Module1& M();

// This thread's shared state if it exists: nullptr before its first use and
// once it is destroyed. For destructors that may run after it (a host's
// static clsNomencla, the application object at thread exit).
Module1* estadoSiExiste();

} // namespace nomencla
