#pragma once
// What the tests share: a fresh database on the private server, a watcher
// that reads and answers the message boxes, and a way to act inside a modal
// dialog while the method that opened it waits.
#include <QMessageBox>
#include <QObject>
#include <QPointer>
#include <QSqlDatabase>
#include <QSqlQuery>
#include <QString>
#include <QTimer>
#include <QVariant>
#include <QtTest>
#include <functional>

namespace prueba {

// A new database `nombre` (dropped first) with the schema loaded, open.
QSqlDatabase baseNueva(const QString& nombre);
// Another connection to the same database, as a second clerk.
QSqlDatabase otraConexion(const QSqlDatabase& base, const QString& nombreConexion);
// The connection `nombreConexion` to `base` on the server behind `socket`,
// opened (a warning when it cannot be).
QSqlDatabase conexion(const QString& nombreConexion, const QString& socket, const QString& base = {});
// The socket of the private server the tests use.
QString socketServidor();
// Runs a file of SQL of the sources ("db/demo.sql").
void cargar(QSqlDatabase& db, const char* archivo);
// The host's second store, as the demo has it: SQLite in memory with the
// table of pending documents.
QSqlDatabase almacenPendientes();
// Runs statements (separated by ";\n"); fails the test on error.
void ejecutarSql(QSqlDatabase& db, const QString& sql);
// A single value.
QVariant valor(QSqlDatabase& db, const QString& sql, const QVariantList& valores = {});
// Rows as texts, cells joined by '|'.
QStringList filas(QSqlDatabase& db, const QString& sql, const QVariantList& valores = {});
// The columns of a table, in their order.
QStringList columnas(QSqlDatabase& db, const QString& tabla);
// Every row of a table (of the tenant `id`, when given) in the order of its
// columns, each cell quoted by the server (BLOBs as hex, NULL bare), cells
// joined by character 31: what the bytes of the table are.
QStringList foto(QSqlDatabase& db, const QString& tabla, const QString& id = {});

struct Caja {
    QString titulo;
    QString texto;
    QMessageBox::Icon icono = QMessageBox::NoIcon;
    bool siNo = false;
};

// Watches for message boxes while it lives: records each one and answers it
// with the next queued answer, or Ok (Yes/No boxes without a queued answer
// are answered No and marked).
class Cajas : public QObject {
    Q_OBJECT
public:
    Cajas();
    ~Cajas() override;
    void responder(QMessageBox::StandardButton boton) { respuestas_.append(boton); }
    QList<Caja> vistas;
    bool sinRespuesta = false;
    // The text of the last box seen ("" when none).
    QString ultima() const { return vistas.isEmpty() ? QString() : vistas.last().texto; }
    void limpiar() { vistas.clear(); sinRespuesta = false; }

private:
    QTimer timer_;
    QList<QMessageBox::StandardButton> respuestas_;
    QList<QPointer<QMessageBox>> atendidas_;
    void revisar();
};

// Calls `pasos` with the dialog `nombre` once it is shown modally; after
// `pasos` the dialog is closed if it is still open. Use it before calling the
// method that opens the dialog.
void alAbrir(const QString& nombre, std::function<void(QWidget*)> pasos);

// The dialog's control `nombre`.
template <class T> T* control(QWidget* dialogo, const QString& nombre)
{
    T* w = dialogo->findChild<T*>(nombre);
    if (!w)
        qWarning("control %s not found", qPrintable(nombre));
    return w;
}

// The data of a test run once a case: column "i", the index of the case in
// `casos`, the row named by `nombre` of it.
template <class L, class F> void porCaso(const L& casos, F nombre)
{
    QTest::addColumn<int>("i");
    for (int i = 0; i < int(casos.size()); ++i)
        QTest::newRow(qPrintable(nombre(casos[i]))) << i;
}

// Types text into a widget, as keys.
void teclear(QWidget* w, const QString& texto);
// Presses one key on a widget.
void tecla(QWidget* w, Qt::Key k);
// Clicks a button by name.
void pulsar(QWidget* dialogo, const QString& nombre);

} // namespace prueba
