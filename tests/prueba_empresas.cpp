// The companies dialog driven as a clerk would, the rows checked afterwards.
#include "tests/prueba_estructura.h"

#include "core/Controles.h"
#include "core/Module1.h"
#include "core/clsGrillas.h"

#include <nomencla/clsNomencla.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

// Fills the fields that a save requires.
void llenar(QWidget* d, const QString& nombre)
{
    tx(d, 0)->setText(nombre);
    tx(d, 2)->setText(u"Av. Central 1"_s);
    tx(d, 3)->setText(u"022222222"_s);
    tx(d, 4)->setText(u"Quito"_s);
    tx(d, 5)->setText(u"Pichincha"_s);
}

} // namespace

class PruebaEmpresas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

private Q_SLOTS:
    void init()
    {
        db = baseNueva(u"t_empresas"_s);
        ejecutarSql(db, u"INSERT INTO empresas (cod,id,emp,act,suc,selec,art,nart,dir,tel,ciu,prov,est) VALUES "
                        "(1,'1','Andina Matriz',0,1,1,0,'','Av. Amazonas','022','Quito','Pichincha',1),"
                        "(2,'1','Comercial Dos',1,2,0,1,'A-7','Calle 2','023','Ambato','Tungurahua',1),"
                        "(3,'1','Sin Sucursales',3,1,0,0,'','Calle 3','024','Loja','Loja',1),"
                        "(4,'1','Vieja',0,1,0,0,'','Calle 4','025','Loja','Loja',0),"
                        "(5,'2','Comercial Dos',0,1,0,0,'','Calle 5','026','Manta','Manabí',1),"
                        "(6,'2','Solo Otra',0,1,0,0,'','Calle 6','027','Manta','Manabí',1),"
                        "(7,'3','Unica',0,1,0,0,'','Calle 7','028','Tena','Napo',1),"
                        "(8,'4','Sola',0,1,0,0,'','Calle 8','029','Puyo','Pastaza',1);\n"
                        "INSERT INTO Sucursales (id,emp,ciu,nom,dir,tel,est) VALUES "
                        "('1','Comercial Dos','Ambato','A','d','1',1),('1','Comercial Dos','Ambato','B','d','1',0),"
                        "('1','Comercial Dos','Ambato','C','d','1',2),('2','Comercial Dos','Manta','D','d','1',1),"
                        "('1','Sin Sucursales','Loja','E','d','1',0),('3','Unica','Tena','F','d','1',1)"_s);
    }

    // The opening, the two messages of a refused save, the duplicate and the inserts.
    void alta_validacion_y_duplicado()
    {
        Cajas cajas;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* combo = control<QComboBox>(d, u"Combo4"_s);
            QCOMPARE(d->windowTitle(), u"Empresas"_s);
            QCOMPARE(control<QLabel>(d, u"Label2"_s)->text(), u"CREANDO NUEVA EMPRESA"_s);
            QCOMPARE(combo->count(), 9);
            QCOMPARE(combo->currentIndex(), -1);
            QVERIFY(!tx(d, 1)->isVisible());
            QCOMPARE(tx(d, 1)->text(), u"1"_s);
            QVERIFY(!control<QWidget>(d, u"Bt(1)"_s)->isEnabled());
            QCOMPARE(gr->RowCount(), 3);
            const int dos = filaCon(gr, u"Comercial Dos"_s);
            QCOMPARE(gr->CellText(dos, 1), u"Farmacia"_s);
            QCOMPARE(gr->CellText(filaCon(gr, u"Andina Matriz"_s), 1), u"Comercio General"_s);
            QCOMPARE(gr->CellText(dos, 2), u"1"_s);
            QCOMPARE(gr->CellText(dos, 3), u"0"_s);

            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), 2);
            QCOMPARE(cajas.vistas[0].titulo, u"Aviso"_s);
            QCOMPARE(cajas.vistas[0].icono, QMessageBox::Critical);
            QCOMPARE(cajas.vistas[0].texto, u"Debe especificar el nombre de la empresa (Nombre comercial)"_s);
            QCOMPARE(cajas.vistas[1].titulo, u"Error"_s);
            QCOMPARE(cajas.vistas[1].texto, u"Debe ingresar toda la información antes de guardar!"_s);

            llenar(d, u"  comercial dos "_s);
            tx(d, 5)->setText(u"   "_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas[2].texto, u"Debe especificar la provincia"_s);
            QCOMPARE(cajas.vistas[3].titulo, u"Error"_s);

            // An active company of this tenant by the same name, whatever the blanks and case.
            tx(d, 5)->setText(u"Pichincha"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), 5);
            QCOMPARE(cajas.ultima(), u"Ya existe una empresa con ese nombre!"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Aviso"_s);
            QCOMPARE(tx(d, 0)->text(), u"  comercial dos "_s);

            // Another tenant's name and a removed company's name are free; no activity chosen.
            tx(d, 0)->setText(u" Solo Otra "_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Listo"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(tx(d, 0)->text(), QString());
            QCOMPARE(tx(d, 1)->text(), u"1"_s);
            QCOMPARE(gr->RowCount(), 4);
            QCOMPARE(gr->CellText(filaCon(gr, u"Solo Otra"_s), 1), u"-1"_s);

            llenar(d, u"Vieja"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Listo"_s);

            // Hostile text is only text; the activity and flags are stored as chosen.
            llenar(d, u"O'Brien'); DROP TABLE empresas; --"_s);
            combo->setCurrentIndex(8);
            control<QCheckBox>(d, u"Check1(0)"_s)->click();
            control<QCheckBox>(d, u"Check1(1)"_s)->click();
            tx(d, 6)->setText(u"N-1"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Listo"_s);
            QCOMPARE(gr->CellText(filaCon(gr, u"O'Brien'); DROP TABLE empresas; --"_s), 1), u"Transporte público"_s);
            QCOMPARE(combo->currentIndex(), 8); // the activity stays for the next one
            QVERIFY(!control<QCheckBox>(d, u"Check1(0)"_s)->isChecked());
            QCOMPARE(control<QLabel>(d, u"Label2"_s)->text(), u"CREANDO NUEVA EMPRESA"_s);
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(filas(db, u"SELECT emp,act,suc,selec,art,nart,dir,est FROM empresas WHERE id='1' AND cod>8 ORDER BY cod"_s),
                 (QStringList{u"Solo Otra|-1|1|0|0||Av. Central 1|1"_s, u"Vieja|-1|1|0|0||Av. Central 1|1"_s,
                              u"O'Brien'); DROP TABLE empresas; --|8|1|1|1|N-1|Av. Central 1|1"_s}));
    }

    // The rename reaches the branches of this tenant, of any status, in the
    // same save; the kept number of branches survives; key 1 can't be removed.
    void modificar_y_renombrar_sucursales()
    {
        Cajas cajas;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, filaCon(gr, u"Andina Matriz"_s));
            QCOMPARE(control<QLabel>(d, u"Label2"_s)->text(), u"MODIFICANDO EMPRESA EXISTENTE"_s);
            QVERIFY(!control<QWidget>(d, u"Bt(1)"_s)->isEnabled());

            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            QVERIFY(control<QWidget>(d, u"Bt(1)"_s)->isEnabled());
            QCOMPARE(tx(d, 1)->text(), u"2"_s);
            QCOMPARE(tx(d, 6)->text(), u"A-7"_s);
            QCOMPARE(control<QComboBox>(d, u"Combo4"_s)->currentIndex(), 1);
            QVERIFY(control<QCheckBox>(d, u"Check1(1)"_s)->isChecked());
            QVERIFY(!control<QCheckBox>(d, u"Check1(0)"_s)->isChecked());
            QCOMPARE(d->focusWidget(), tx(d, 0));
            tx(d, 0)->setText(u"Comercial Tres"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            QCOMPARE(control<QLabel>(d, u"Label2"_s)->text(), u"CREANDO NUEVA EMPRESA"_s);
            QVERIFY(filaCon(gr, u"Comercial Tres"_s) >= 0);
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT cod,emp,suc,act,art,nart FROM empresas WHERE emp LIKE 'Comercial%' ORDER BY cod"_s),
                 (QStringList{u"2|Comercial Tres|2|1|1|A-7"_s, u"5|Comercial Dos|1|0|0|"_s}));
        QCOMPARE(filas(db, u"SELECT id,nom,emp FROM Sucursales WHERE nom IN ('A','B','C','D') ORDER BY nom"_s),
                 (QStringList{u"1|A|Comercial Tres"_s, u"1|B|Comercial Tres"_s, u"1|C|Comercial Tres"_s,
                              u"2|D|Comercial Dos"_s}));
    }

    // When the branches can't be renamed the company isn't renamed either,
    // and the dialog stays as it was.
    void fallo_entre_las_dos_sentencias()
    {
        Cajas cajas;
        QSqlDatabase otra = otraConexion(db, u"t_empresas_otra"_s);
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            tx(d, 0)->setText(u"Comercial Tres"_s);
            ejecutarSql(otra, u"RENAME TABLE Sucursales TO SucursalesAparte"_s);
            pulsar(d, u"Bt(0)"_s);
            ejecutarSql(otra, u"RENAME TABLE SucursalesAparte TO Sucursales"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].titulo, u"Error de base de datos"_s);
            QVERIFY(d->isVisible());
            QCOMPARE(tx(d, 0)->text(), u"Comercial Tres"_s);
            QCOMPARE(control<QLabel>(d, u"Label2"_s)->text(), u"MODIFICANDO EMPRESA EXISTENTE"_s);
            QVERIFY(filaCon(gr, u"Comercial Dos"_s) >= 0);
        });
        QVERIFY(!nomencla.Empresas(u"1"_s, db));
        QCOMPARE(valor(db, u"SELECT emp FROM empresas WHERE cod=2"_s).toString(), u"Comercial Dos"_s);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM Sucursales WHERE emp='Comercial Dos'"_s).toInt(), 4);
    }

    // Removal: active branches refuse it (counted by the name in the box),
    // No keeps the row, Yes marks it removed; the last company stays.
    void quitar()
    {
        Cajas cajas;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede eliminar la empresa ya que existen sucursales asignadas a ella"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"Aviso"_s);

            // An edited name finds no branches: the question comes, answered No.
            tx(d, 0)->setText(u"Otro nombre"_s);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea quitar la Empresa ''Otro nombre'' de la base de datos?"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"CONFIRME"_s);
            QCOMPARE(gr->RowCount(), 3);

            // Only removed branches: it goes.
            dobleClic(gr, filaCon(gr, u"Sin Sucursales"_s));
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            const auto n = cajas.vistas.size();
            QCOMPARE(cajas.vistas[n - 2].texto, u"Está seguro que desea quitar la Empresa ''Sin Sucursales'' de la base de datos?"_s);
            QCOMPARE(cajas.vistas[n - 1].texto, u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 2);
            QVERIFY(!control<QWidget>(d, u"Bt(1)"_s)->isEnabled());
            QCOMPARE(tx(d, 0)->text(), QString());
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT cod,est FROM empresas WHERE id='1' ORDER BY cod"_s),
                 (QStringList{u"1|1"_s, u"2|1"_s, u"3|0"_s, u"4|0"_s}));

        // The only company: its branches are told first, then that it is the last.
        const QList<std::pair<QString, QString>> ultimas{
            {u"3"_s, u"No se puede eliminar la empresa ya que existen sucursales asignadas a ella"_s},
            {u"4"_s, u"No se puede eliminar esta empresa ya que debe haber al menos una empresa activa!"_s}};
        for (const auto& caso : ultimas) {
            const QString id = caso.first;
            const QString mensaje = caso.second;
            cajas.limpiar();
            alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
                auto* gr = control<Alfarje>(d, u"GR"_s);
                QCOMPARE(gr->RowCount(), 1);
                dobleClic(gr, 0);
                pulsar(d, u"Bt(1)"_s);
                QCOMPARE(cajas.vistas.size(), 1);
                QCOMPARE(cajas.ultima(), mensaje);
            });
            QVERIFY(!nomencla.Empresas(id, db));
        }
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM empresas WHERE cod IN (7,8) AND est=1"_s).toInt(), 2);
    }

    // The logo: chosen, shown, refused when it is no picture or too large,
    // stored with the save under the company's key, dropped by Nueva and by a cancel.
    void logo()
    {
        QTemporaryDir dir;
        const QString png = dir.filePath(u"logo.png"_s);
        const QString jpg = dir.filePath(u"foto.jpg"_s);
        const QString texto = dir.filePath(u"nota.png"_s);
        const QString grande = dir.filePath(u"grande.png"_s);
        QImage imagen(40, 20, QImage::Format_RGB32);
        imagen.fill(Qt::darkBlue);
        QVERIFY(imagen.save(png, "PNG"));
        QVERIFY(imagen.save(jpg, "JPG"));
        {
            QFile f(texto);
            QVERIFY(f.open(QIODevice::WriteOnly));
            f.write("esto no es una imagen");
            QFile g(grande);
            QVERIFY(g.open(QIODevice::WriteOnly));
            QFile p(png);
            QVERIFY(p.open(QIODevice::ReadOnly));
            g.write(p.readAll());
            g.write(QByteArray(int(nomencla::clsGrillas::tamanoMaximoImagen), '\0'));
        }
        auto bytes = [](const QString& ruta) {
            QFile f(ruta);
            return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
        };

        QStringList elecciones;
        QString titulo;
        QString filtro;
        nomencla::setElectorArchivo([&](QWidget*, const QString& t, const QString& f) {
            titulo = t;
            filtro = f;
            return elecciones.isEmpty() ? QString() : elecciones.takeFirst();
        });
        Cajas cajas;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* p1 = control<QLabel>(d, u"P1"_s);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto elegir = [&](const QString& ruta) {
                elecciones = {ruta};
                QTest::mouseClick(p1, Qt::LeftButton);
            };
            elegir(texto);
            QCOMPARE(titulo, u"Seleccionar logo"_s);
            for (const QString& extension : {u"*.jpg"_s, u"*.jpeg"_s, u"*.png"_s})
                QVERIFY(filtro.contains(extension));
            QCOMPARE(cajas.vistas.size(), 1);
            QVERIFY(cajas.ultima().contains(u"no es una imagen"_s));
            QVERIFY(p1->pixmap().isNull());

            elegir(png);
            QVERIFY(!p1->pixmap().isNull());
            elegir(grande);
            QCOMPARE(cajas.vistas.size(), 2);
            QVERIFY(cajas.ultima().contains(u"4 MB"_s));
            QVERIFY(!p1->pixmap().isNull());

            // A refused duplicate keeps the file for the next attempt.
            llenar(d, u"Comercial Dos"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Ya existe una empresa con ese nombre!"_s);
            llenar(d, u"Con Logo"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            // Stored once: the next save doesn't store it again, though it is still shown.
            QVERIFY(!p1->pixmap().isNull());
            llenar(d, u"Sin Logo"_s);
            pulsar(d, u"Bt(0)"_s);

            // Chosen before a pick: it becomes the picked company's logo.
            elegir(jpg);
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            pulsar(d, u"Bt(0)"_s); // no new choice: the logo stays

            elegir(png);
            pulsar(d, u"Bt(2)"_s);
            llenar(d, u"Tras Nueva"_s);
            pulsar(d, u"Bt(0)"_s);

            elegir(png);
            elegir(QString()); // cancelled
            QVERIFY(p1->pixmap().isNull());
            llenar(d, u"Cancelada"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        nomencla::setElectorArchivo({});
        QCOMPARE(valor(db, u"SELECT logo FROM empresas WHERE emp='Con Logo' AND id='1'"_s).toByteArray(), bytes(png));
        QCOMPARE(valor(db, u"SELECT logo FROM empresas WHERE cod=2"_s).toByteArray(), bytes(jpg));
        QCOMPARE(filas(db, u"SELECT emp FROM empresas WHERE logo IS NULL AND id='1' AND cod>8 ORDER BY cod"_s),
                 (QStringList{u"Sin Logo"_s, u"Tras Nueva"_s, u"Cancelada"_s}));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM empresas WHERE logo IS NOT NULL"_s).toInt(), 2);
    }
};

QTEST_MAIN(PruebaEmpresas)
#include "prueba_empresas.moc"
