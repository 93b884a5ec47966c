#pragma once
// Data access of the dialogs: every statement is prepared and its values are
// bound (texts as text, numbers as numbers, dates as QDate); every exec() is
// checked and a failure travels up as ErrorBD to the operation that started
// it, which shows it and stops (Formulario::operacion).
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QString>
#include <QVariant>
#include <QVariantList>
#include <exception>
#include <functional>

namespace nomencla {

class ErrorBD : public std::exception {
public:
    explicit ErrorBD(QSqlError error, QString sentencia = {}, QSqlDatabase db = {});
    const QSqlError& error() const noexcept { return error_; }
    const QString& sentencia() const noexcept { return sentencia_; }
    // The connection that failed (invalid when unknown).
    const QSqlDatabase& conexion() const noexcept { return db_; }
    // What the user is shown: the driver's and the database's own words.
    QString texto() const;
    const char* what() const noexcept override;

private:
    QSqlError error_;
    QString sentencia_;
    QSqlDatabase db_;
    QByteArray mensaje_;
};

// Prepares `sql` (positional '?' placeholders), binds `valores` in order and
// runs it. Throws ErrorBD on failure. Selects are forward-only unless asked.
QSqlQuery ejecutar(QSqlDatabase& db, const QString& sql, const QVariantList& valores = {},
                   bool soloAdelante = true);

// Sees each statement that ejecutar() is about to run, with its values (the
// plan test records them this way). Empty, the default: nothing is watched.
using ObservadorSentencias = std::function<void(const QSqlDatabase&, const QString&, const QVariantList&)>;
void observarSentencias(ObservadorSentencias observador);

// First field of the first row; a Null QVariant when there is no row or the
// value is Null (MAX over no rows).
QVariant consultarValor(QSqlDatabase& db, const QString& sql, const QVariantList& valores = {});

// The insert broke a unique key (another clerk took the same key).
bool esClaveDuplicada(const QSqlError& error);

// The connection was lost or the server went away.
bool esConexionPerdida(const QSqlError& error);

// After a lost connection: closes and opens it again with the same settings.
// True when the connection is usable again. The statement that failed is not
// repeated: whether it reached the server is unknown, and the user decides.
bool reconectar(QSqlDatabase db);

// RAII transaction: begun at construction, rolled back at destruction unless
// confirmar() committed it. Throws ErrorBD when begin or commit fail.
class Transaccion {
public:
    explicit Transaccion(QSqlDatabase& db);
    ~Transaccion();
    Transaccion(const Transaccion&) = delete;
    Transaccion& operator=(const Transaccion&) = delete;
    void confirmar();

private:
    QSqlDatabase& db_;
    bool activa_ = false;
};

// Keys numbered by the program per tenant: asks `sqlMaximo` (MAX(cod) with
// its filter), takes Null as 0, adds 1 and calls `insertar` with the key. A
// duplicate-key failure (two clerks at once; the table has UNIQUE (id,cod))
// is retried with a fresh maximum, up to `intentos` times, then thrown as
// ClaveTomada. Returns the key. When the maximum is already the largest INT
// there is no next key: ErrorBD, with a message for the clerk, before
// `insertar` is called.
qint32 insertarConClaveSiguiente(QSqlDatabase& db, const QString& sqlMaximo,
                                 const QVariantList& valoresMaximo,
                                 const std::function<void(qint32)>& insertar, int intentos = 20);

// The key numbered by insertarConClaveSiguiente was taken by another session
// at every try: a conflict, which the whole operation may be run again for.
class ClaveTomada : public ErrorBD {
public:
    explicit ClaveTomada(const ErrorBD& error) : ErrorBD(error) {}
};

} // namespace nomencla
