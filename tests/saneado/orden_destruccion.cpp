// The shared state and the objects that release it at the end of a thread
// and of the process, run under AddressSanitizer and UndefinedBehaviorSanitizer:
// a destructor touching the state after it is gone, or creating it again and
// leaving it behind, is reported and fails the test.
#include <nomencla/clsNomencla.h>

#include "core/Module1.h"

#include <QSqlDatabase>
#include <thread>

namespace {

// A host's object of static storage: destroyed after the main thread's state.
clsNomencla estatico;

// The host's first call goes through the application object; the state then
// holds the services that the object gives up.
void primeraLlamadaPorAplicacion()
{
    QSqlDatabase sinAbrir;
    clsNomencla::aplicacion().ConfirmaUsuario(QStringLiteral("1"), sinAbrir);
    nomencla::M().servicios();
    nomencla::M().grillas();
}

} // namespace

int main()
{
    std::thread otro(primeraLlamadaPorAplicacion);
    otro.join();
    primeraLlamadaPorAplicacion();
    QSqlDatabase sinAbrir;
    estatico.ConfirmaUsuario(QStringLiteral("2"), sinAbrir);
    return 0;
}
