#include "core/Conflictos.h"

#include "core/BaseDatos.h"

#include <QRandomGenerator>
#include <QThread>

#include <algorithm>
#include <atomic>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {
std::atomic<quint64> conflictos{0};
}

bool esConflicto(const ErrorBD& error)
{
    // 1213: deadlock, and Galera's certification failure or brute-force
    // abort. A MAX(cod)+1 key that stayed taken through all its tries comes
    // as ClaveTomada; any other duplicate key is the data's and is shown.
    return error.error().nativeErrorCode() == u"1213"_s || dynamic_cast<const ClaveTomada*>(&error) != nullptr;
}

bool esNodoFueraDelGrupo(const QSqlError& error)
{
    // ER_UNKNOWN_COM_ERROR, which Galera returns as "WSREP has not yet
    // prepared node for application use".
    return error.nativeErrorCode() == u"1047"_s;
}

void conReintentos(const std::function<void()>& operacion, int intentos)
{
    for (int intento = 1;; ++intento) {
        try {
            operacion();
            return;
        } catch (const ErrorBD& e) {
            if (!esConflicto(e))
                throw;
            ++conflictos;
            if (intento >= intentos)
                throw;
        }
        // The sessions that met are apart again after a pause of their own,
        // which also lets this node apply the write that won.
        const int tope = std::min(10 << intento, 250);
        QThread::msleep(QRandomGenerator::global()->bounded(tope / 4, tope + 1));
    }
}

quint64 conflictosVistos()
{
    return conflictos.load();
}

} // namespace nomencla
