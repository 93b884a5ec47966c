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

namespace {

// While it lives, the reads of the session on a Galera node are causal: each
// waits until the node has applied every write the cluster committed before
// it, so that a run again reads what won (a node behind the others would hand
// out the same MAX(cod)+1 again). Elsewhere, or when the setting fails, it
// does nothing: the run again meets the same failure and tells it.
class LecturaCausal {
public:
    explicit LecturaCausal(QSqlDatabase db) : db_(std::move(db))
    {
        const QString driver = db_.isValid() ? db_.driverName() : QString();
        if (!db_.isOpen() || !(driver.startsWith(u"QMYSQL"_s) || driver.startsWith(u"QMARIADB"_s)))
            return;
        try {
            QSqlQuery q = ejecutar(db_, u"SELECT @@wsrep_on, @@session.wsrep_sync_wait"_s);
            if (!q.next() || q.value(0).toInt() != 1 || (q.value(1).toInt() & 1) != 0)
                return;
            antes_ = q.value(1).toLongLong();
            ejecutar(db_, u"SET SESSION wsrep_sync_wait=1"_s);
            activa_ = true;
        } catch (const ErrorBD&) {
        }
    }
    ~LecturaCausal()
    {
        if (!activa_)
            return;
        try {
            ejecutar(db_, u"SET SESSION wsrep_sync_wait=?"_s, {antes_});
        } catch (const ErrorBD&) {
            // A connection lost meanwhile starts afresh with the server's setting.
        }
    }
    LecturaCausal(const LecturaCausal&) = delete;
    LecturaCausal& operator=(const LecturaCausal&) = delete;

private:
    QSqlDatabase db_;
    qint64 antes_ = 0;
    bool activa_ = false;
};

} // namespace

void conReintentos(const std::function<void()>& operacion, int intentos)
{
    QSqlDatabase conexion; // the one the last conflict came from
    for (int intento = 1;; ++intento) {
        try {
            const LecturaCausal causal(conexion);
            operacion();
            return;
        } catch (const ErrorBD& e) {
            if (!esConflicto(e))
                throw;
            ++conflictos;
            if (intento >= intentos)
                throw;
            conexion = e.conexion();
        }
        // The sessions that met are apart again after a pause of their own.
        const int tope = std::min(10 << intento, 250);
        QThread::msleep(QRandomGenerator::global()->bounded(tope / 4, tope + 1));
    }
}

quint64 conflictosVistos()
{
    return conflictos.load();
}

} // namespace nomencla
