#include "core/BaseDatos.h"

#include <QSqlDriver>
#include <limits>

using namespace Qt::StringLiterals;

namespace nomencla {

ErrorBD::ErrorBD(QSqlError error, QString sentencia, QSqlDatabase db)
    : error_(std::move(error)), sentencia_(std::move(sentencia)), db_(std::move(db)), mensaje_(texto().toUtf8())
{
}

QString ErrorBD::texto() const
{
    QString t = error_.databaseText().trimmed();
    const QString driver = error_.driverText().trimmed();
    if (t.isEmpty())
        t = driver;
    else if (!driver.isEmpty() && !t.contains(driver))
        t = driver + u"\n"_s + t;
    if (!error_.nativeErrorCode().isEmpty())
        t += u" ("_s + error_.nativeErrorCode() + u")"_s;
    if (t.isEmpty())
        t = QStringLiteral("Error desconocido de la base de datos.");
    return t;
}

const char* ErrorBD::what() const noexcept
{
    return mensaje_.constData();
}

static void fallar(const QSqlError& error, const QString& sql, const QSqlDatabase& db = {})
{
    throw ErrorBD(error.isValid() ? error
                                  : QSqlError(QStringLiteral("La conexión con la base de datos no está abierta."),
                                              {}, QSqlError::ConnectionError),
                  sql, db);
}

bool reconectar(QSqlDatabase db)
{
    if (!db.isValid())
        return false;
    db.close();
    return db.open();
}

static ObservadorSentencias& observador()
{
    static ObservadorSentencias o;
    return o;
}

void observarSentencias(ObservadorSentencias o)
{
    observador() = std::move(o);
}

QSqlQuery ejecutar(QSqlDatabase& db, const QString& sql, const QVariantList& valores, bool soloAdelante)
{
    if (observador())
        observador()(db, sql, valores);
    // A connection left closed by a failed reconnection is opened again here:
    // nothing has been sent yet.
    if (!db.isOpen() && !db.open())
        fallar(db.lastError(), sql, db);
    QSqlQuery q(db);
    q.setForwardOnly(soloAdelante);
    if (!q.prepare(sql))
        fallar(q.lastError(), sql, db);
    for (const QVariant& v : valores) {
        // An empty text box gives a null QString, which would bind as NULL:
        // texts are bound as text, empty or not. A deliberate NULL is QVariant().
        if (v.typeId() == QMetaType::QString && v.toString().isNull())
            q.addBindValue(QStringLiteral(""));
        else
            q.addBindValue(v);
    }
    if (!q.exec())
        fallar(q.lastError(), sql, db);
    return q;
}

QVariant consultarValor(QSqlDatabase& db, const QString& sql, const QVariantList& valores)
{
    QSqlQuery q = ejecutar(db, sql, valores);
    if (!q.next()) {
        if (q.lastError().isValid())
            fallar(q.lastError(), sql, db);
        return {};
    }
    return q.value(0);
}

bool esClaveDuplicada(const QSqlError& error)
{
    // 1062: ER_DUP_ENTRY (MySQL, MariaDB); SQLite reports a UNIQUE constraint.
    const QString codigo = error.nativeErrorCode();
    return codigo == u"1062"_s || codigo == u"2067"_s || codigo == u"1555"_s
        || error.databaseText().contains(u"UNIQUE constraint"_s, Qt::CaseInsensitive);
}

bool esConexionPerdida(const QSqlError& error)
{
    const QString codigo = error.nativeErrorCode();
    return codigo == u"2006"_s || codigo == u"2013"_s || codigo == u"2002"_s || codigo == u"1927"_s
        || codigo == u"2055"_s || codigo == u"4031"_s || error.type() == QSqlError::ConnectionError;
}

Transaccion::Transaccion(QSqlDatabase& db) : db_(db)
{
    if ((!db_.isOpen() && !db_.open()) || !db_.transaction())
        fallar(db_.lastError(), QStringLiteral("START TRANSACTION"), db_);
    activa_ = true;
}

Transaccion::~Transaccion()
{
    if (activa_)
        db_.rollback();
}

void Transaccion::confirmar()
{
    if (!db_.commit()) {
        const QSqlError error = db_.lastError();
        db_.rollback();
        activa_ = false;
        fallar(error, QStringLiteral("COMMIT"), db_);
    }
    activa_ = false;
}

qint32 insertarConClaveSiguiente(QSqlDatabase& db, const QString& sqlMaximo, const QVariantList& valoresMaximo,
                                 const std::function<void(qint32)>& insertar, int intentos)
{
    for (int intento = 1;; ++intento) {
        const QVariant maximo = consultarValor(db, sqlMaximo, valoresMaximo);
        // Null (no row yet) counts as 0, so a tenant's first key is 1. Past
        // the largest key an INT holds there is no next one: nothing is written.
        const qint64 ultima = maximo.isNull() ? 0 : maximo.toLongLong();
        if (ultima >= std::numeric_limits<qint32>::max())
            throw ErrorBD(QSqlError(u"No se puede dar un código al registro nuevo: el último ya es %1, el mayor que "
                                    "admite la base de datos. No se guardó nada."_s.arg(ultima),
                                    {}, QSqlError::StatementError),
                          sqlMaximo, db);
        const qint32 clave = qint32(ultima) + 1;
        try {
            insertar(clave);
            return clave;
        } catch (const ErrorBD& e) {
            if (!esClaveDuplicada(e.error()))
                throw;
            if (intento >= intentos)
                throw ClaveTomada(e);
        }
    }
}

} // namespace nomencla
