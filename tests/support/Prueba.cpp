#include "tests/support/Prueba.h"

#include <QAbstractButton>
#include <QApplication>
#include <QFile>
#include <QSqlError>
#include <QSqlRecord>

using namespace Qt::StringLiterals;

namespace prueba {

QSqlDatabase conexion(const QString& nombreConexion, const QString& socket, const QString& base)
{
    QSqlDatabase db = QSqlDatabase::contains(nombreConexion) ? QSqlDatabase::database(nombreConexion, false)
                                                             : QSqlDatabase::addDatabase(u"QMYSQL"_s, nombreConexion);
    db.setHostName(u"localhost"_s);
    db.setUserName(u"root"_s);
    db.setConnectOptions(u"UNIX_SOCKET="_s + socket);
    db.setDatabaseName(base);
    if (!db.open())
        qWarning("no connection to %s: %s", qPrintable(socket), qPrintable(db.lastError().text()));
    return db;
}

QString socketServidor()
{
    return qEnvironmentVariable("NOMENCLA_TEST_SOCKET", QStringLiteral(NOMENCLA_SOCKET));
}

static QSqlDatabase conectar(const QString& nombreConexion, const QString& base)
{
    QSqlDatabase db = conexion(nombreConexion, socketServidor(), base);
    if (!db.isOpen())
        qFatal("no connection to the private server");
    return db;
}

void cargar(QSqlDatabase& db, const char* archivo)
{
    QFile f(QStringLiteral(NOMENCLA_FUENTES "/") + QString::fromUtf8(archivo));
    if (!f.open(QIODevice::ReadOnly))
        qFatal("%s missing", archivo);
    ejecutarSql(db, QString::fromUtf8(f.readAll()));
}

QSqlDatabase almacenPendientes()
{
    QSqlDatabase acces = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"acces"_s);
    acces.setDatabaseName(u":memory:"_s);
    if (!acces.open())
        qFatal("no SQLite store");
    cargar(acces, "db/pendientes.sql");
    return acces;
}

void ejecutarSql(QSqlDatabase& db, const QString& sql)
{
    const QStringList sentencias = sql.split(u";\n"_s);
    for (QString s : sentencias) {
        s = s.trimmed();
        if (s.endsWith(u';'))
            s.chop(1);
        // Drop whole-line comments.
        QStringList lineas = s.split(u'\n');
        lineas.removeIf([](const QString& l) { return l.trimmed().startsWith(u"--"_s); });
        s = lineas.join(u'\n').trimmed();
        if (s.isEmpty())
            continue;
        QSqlQuery q(db);
        if (!q.exec(s))
            qFatal("SQL failed: %s\n%s", qPrintable(q.lastError().text()), qPrintable(s));
    }
}

QSqlDatabase baseNueva(const QString& nombre)
{
    {
        QSqlDatabase admin = conectar(u"admin"_s, QString());
        QSqlQuery q(admin);
        if (!q.exec(u"DROP DATABASE IF EXISTS `"_s + nombre + u"`"_s)
            || !q.exec(u"CREATE DATABASE `"_s + nombre + u"` CHARACTER SET utf8mb4 COLLATE utf8mb4_unicode_ci"_s))
            qFatal("cannot create database %s: %s", qPrintable(nombre), qPrintable(q.lastError().text()));
    }
    QSqlDatabase db = conectar(nombre, nombre);
    cargar(db, "db/schema.sql");
    return db;
}

QSqlDatabase otraConexion(const QSqlDatabase& base, const QString& nombreConexion)
{
    return conectar(nombreConexion, base.databaseName());
}

static QSqlQuery consultar(QSqlDatabase& db, const QString& sql, const QVariantList& valores)
{
    QSqlQuery q(db);
    q.prepare(sql);
    for (const QVariant& v : valores)
        q.addBindValue(v);
    if (!q.exec())
        qFatal("SQL failed: %s\n%s", qPrintable(q.lastError().text()), qPrintable(sql));
    return q;
}

QVariant valor(QSqlDatabase& db, const QString& sql, const QVariantList& valores)
{
    QSqlQuery q = consultar(db, sql, valores);
    return q.next() ? q.value(0) : QVariant();
}

QStringList filas(QSqlDatabase& db, const QString& sql, const QVariantList& valores)
{
    QSqlQuery q = consultar(db, sql, valores);
    QStringList r;
    while (q.next()) {
        QStringList celdas;
        for (int i = 0; i < q.record().count(); ++i)
            celdas << (q.value(i).isNull() ? u"NULL"_s : q.value(i).toString());
        r << celdas.join(u'|');
    }
    return r;
}

QStringList columnas(QSqlDatabase& db, const QString& tabla)
{
    return filas(db, u"SELECT COLUMN_NAME FROM information_schema.COLUMNS WHERE TABLE_SCHEMA=DATABASE() "
                     "AND TABLE_NAME=? ORDER BY ORDINAL_POSITION"_s, {tabla});
}

QStringList foto(QSqlDatabase& db, const QString& tabla, const QString& id)
{
    QStringList celdas, orden;
    for (const QString& c : filas(db, u"SELECT COLUMN_NAME, DATA_TYPE FROM information_schema.COLUMNS WHERE "
                                      "TABLE_SCHEMA=DATABASE() AND TABLE_NAME=? ORDER BY ORDINAL_POSITION"_s, {tabla})) {
        const QStringList p = c.split(u'|');
        orden << u'`' + p[0] + u'`';
        celdas << (p[1].endsWith(u"blob"_s) ? u"QUOTE(HEX(%1))"_s : u"QUOTE(%1)"_s).arg(orden.last());
    }
    const QString sql = u"SELECT CONCAT_WS(CHAR(31),%1) FROM `%2`"_s.arg(celdas.join(u','), tabla);
    if (id.isNull())
        return filas(db, sql + u" ORDER BY "_s + orden.join(u','));
    return filas(db, sql + u" WHERE id=? ORDER BY "_s + orden.join(u','), {id});
}

Cajas::Cajas()
{
    timer_.setInterval(5);
    connect(&timer_, &QTimer::timeout, this, &Cajas::revisar);
    timer_.start();
}

Cajas::~Cajas() = default;

void Cajas::revisar()
{
    auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
    if (!caja || !caja->isVisible())
        return;
    for (const auto& vista : atendidas_)
        if (vista == caja)
            return;
    atendidas_.append(caja);
    Caja c;
    c.titulo = caja->windowTitle();
    c.texto = caja->text();
    c.icono = caja->icon();
    c.siNo = caja->button(QMessageBox::Yes) != nullptr;
    vistas.append(c);
    QMessageBox::StandardButton respuesta = QMessageBox::Ok;
    if (!respuestas_.isEmpty())
        respuesta = respuestas_.takeFirst();
    else if (c.siNo) {
        respuesta = QMessageBox::No;
        sinRespuesta = true;
    }
    QAbstractButton* boton = caja->button(respuesta);
    if (!boton) {
        sinRespuesta = true;
        boton = caja->buttons().value(0);
    }
    QPointer<QMessageBox> p(caja);
    QTimer::singleShot(0, caja, [p, boton] {
        if (p)
            boton->click();
    });
}

void alAbrir(const QString& nombre, std::function<void(QWidget*)> pasos)
{
    auto* vigia = new QTimer;
    vigia->setInterval(5);
    auto intentos = std::make_shared<int>(0);
    QObject::connect(vigia, &QTimer::timeout, vigia, [vigia, nombre, pasos, intentos] {
        QWidget* dialogo = QApplication::activeModalWidget();
        if (!dialogo || dialogo->objectName() != nombre || !dialogo->isVisible()) {
            if (++*intentos > 2000) { // 10 s
                vigia->deleteLater();
                qWarning("dialog %s never showed", qPrintable(nombre));
            }
            return;
        }
        vigia->stop();
        vigia->deleteLater();
        QPointer<QWidget> p(dialogo);
        pasos(dialogo);
        if (p && p->isVisible())
            QMetaObject::invokeMethod(p, "reject");
    });
    vigia->start();
}

void teclear(QWidget* w, const QString& texto)
{
    QTest::keyClicks(w, texto);
}

void tecla(QWidget* w, Qt::Key k)
{
    QTest::keyClick(w, k);
}

void pulsar(QWidget* dialogo, const QString& nombre)
{
    auto* b = dialogo->findChild<QAbstractButton*>(nombre);
    if (!b) {
        qWarning("button %s not found", qPrintable(nombre));
        return;
    }
    b->click();
}

} // namespace prueba
