// The companies dialog driven as a clerk would, the rows checked afterwards.
#include "tests/prueba_estructura.h"

#include "core/Controles.h"
#include "core/clsGrillas.h"

#include <nomencla/clsNomencla.h>

#include <QCheckBox>
#include <QComboBox>
#include <QFile>
#include <QImage>
#include <QLabel>
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
                        "(7,'3','Sola',0,1,0,0,'','Calle 7','028','Tena','Napo',1);\n"
                        "INSERT INTO Sucursales (id,emp,ciu,nom,dir,tel,est) VALUES "
                        "('1','Comercial Dos','Ambato','A','d','1',1),('1','Comercial Dos','Ambato','B','d','1',0),"
                        "('1','Comercial Dos','Ambato','C','d','1',2),('2','Comercial Dos','Manta','D','d','1',1),"
                        "('1','Sin Sucursales','Loja','E','d','1',0)"_s);
    }

    // A refused save tells the missing field; a name is a duplicate only among
    // this tenant's active companies, whatever the blanks and case.
    void alta_validacion_y_duplicado()
    {
        Cajas cajas;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            QCOMPARE(control<Alfarje>(d, u"GR"_s)->RowCount(), 3);
            llenar(d, u"  comercial dos "_s);
            tx(d, 5)->setText(u"   "_s);
            pulsar(d, u"Bt(0)"_s);
            tx(d, 5)->setText(u"Pichincha"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), 3);
            QCOMPARE(cajas.vistas[0].texto, u"Debe especificar la provincia"_s);
            QCOMPARE(cajas.vistas[1].texto, u"Debe ingresar toda la información antes de guardar!"_s);
    
            tx(d, 0)->setText(u" Solo Otra "_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
            llenar(d, u"Vieja"_s);
            control<QComboBox>(d, u"Combo4"_s)->setCurrentIndex(8);
            control<QCheckBox>(d, u"Check1(0)"_s)->click();
            control<QCheckBox>(d, u"Check1(1)"_s)->click();
            tx(d, 6)->setText(u"N-1"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT id,emp,act,suc,selec,art,nart,dir,est FROM empresas WHERE cod>7 ORDER BY cod"_s),
                 (QStringList{u"1|Solo Otra|-1|1|0|0||Av. Central 1|1"_s, u"1|Vieja|8|1|1|1|N-1|Av. Central 1|1"_s}));
    }

    // The company and its branches are renamed together or not at all: a
    // failure keeps both names, and the retry renames this tenant's branches
    // of any status. The picked row's other values are saved back unchanged.
    void renombrar_con_sus_sucursales()
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
            QCOMPARE(valor(db, u"SELECT emp FROM empresas WHERE cod=2"_s).toString(), u"Comercial Dos"_s);
            QCOMPARE(valor(db, u"SELECT COUNT(*) FROM Sucursales WHERE emp='Comercial Dos'"_s).toInt(), 4);

            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La información se ha guardado con éxito!"_s);
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT cod,emp,act,suc,selec,art,nart,dir FROM empresas WHERE emp LIKE 'Comercial%' ORDER BY cod"_s),
                 (QStringList{u"2|Comercial Tres|1|2|0|1|A-7|Calle 2"_s, u"5|Comercial Dos|0|1|0|0||Calle 5"_s}));
        QCOMPARE(filas(db, u"SELECT id,nom,emp FROM Sucursales WHERE nom IN ('A','B','C','D') ORDER BY nom"_s),
                 (QStringList{u"1|A|Comercial Tres"_s, u"1|B|Comercial Tres"_s, u"1|C|Comercial Tres"_s,
                              u"2|D|Comercial Dos"_s}));
    }

    // Key 1 is never removed; active branches (counted by the name in the box)
    // refuse the removal; No keeps the row, Yes marks it removed; a tenant's
    // only company stays.
    void quitar()
    {
        Cajas cajas;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            dobleClic(gr, filaCon(gr, u"Andina Matriz"_s));
            QVERIFY(!control<QWidget>(d, u"Bt(1)"_s)->isEnabled());
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede eliminar la empresa ya que existen sucursales asignadas a ella"_s);

            tx(d, 0)->setText(u"Otro nombre"_s);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"Está seguro que desea quitar la Empresa ''Otro nombre'' de la base de datos?"_s);

            dobleClic(gr, filaCon(gr, u"Sin Sucursales"_s));
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"La operación se realizó correctamente!"_s);
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));

        cajas.limpiar();
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            dobleClic(control<Alfarje>(d, u"GR"_s), 0);
            pulsar(d, u"Bt(1)"_s);
        });
        QVERIFY(!nomencla.Empresas(u"3"_s, db));
        QCOMPARE(cajas.vistas.size(), 1);
        QCOMPARE(cajas.ultima(), u"No se puede eliminar esta empresa ya que debe haber al menos una empresa activa!"_s);
        QCOMPARE(filas(db, u"SELECT cod,est FROM empresas WHERE id IN ('1','3') ORDER BY cod"_s),
                 (QStringList{u"1|1"_s, u"2|1"_s, u"3|0"_s, u"4|0"_s, u"7|1"_s}));
    }

    // The logo: refused when it is no picture or too large, stored once with
    // the save under the company's key, dropped by a cancel, and the stored
    // one shown when its company is picked.
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
        auto bytes = [](const QString& ruta) {
            QFile f(ruta);
            return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
        };
        auto escribir = [](const QString& ruta, const QByteArray& datos) {
            QFile f(ruta);
            return f.open(QIODevice::WriteOnly) && f.write(datos) == datos.size();
        };
        QVERIFY(escribir(texto, "esto no es una imagen"));
        QVERIFY(escribir(grande, bytes(png) + QByteArray(int(nomencla::clsGrillas::tamanoMaximoImagen), '\0')));

        QStringList elecciones;
        nomencla::setElectorArchivo([&](QWidget*, const QString&, const QString&) {
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
            QVERIFY(cajas.ultima().contains(u"no es una imagen"_s));
            elegir(png);
            elegir(grande);
            QCOMPARE(cajas.vistas.size(), 2);
            QVERIFY(cajas.ultima().contains(u"4 MB"_s));

            // A refused duplicate keeps the file for the next attempt; the
            // save after the one that stored it doesn't store it again.
            llenar(d, u"Comercial Dos"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Ya existe una empresa con ese nombre!"_s);
            llenar(d, u"Con Logo"_s);
            pulsar(d, u"Bt(0)"_s);
            llenar(d, u"Sin Logo"_s);
            pulsar(d, u"Bt(0)"_s);

            // Chosen before a pick: it becomes the picked company's logo,
            // and a later save without a new choice keeps it.
            elegir(jpg);
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            pulsar(d, u"Bt(0)"_s);

            elegir(png);
            elegir(QString()); // cancelled
            QVERIFY(p1->pixmap().isNull());
            llenar(d, u"Cancelada"_s);
            pulsar(d, u"Bt(0)"_s);

            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            QVERIFY(!p1->pixmap().isNull());
            dobleClic(gr, filaCon(gr, u"Andina Matriz"_s));
            QVERIFY(p1->pixmap().isNull());
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        nomencla::setElectorArchivo({});
        QCOMPARE(valor(db, u"SELECT logo FROM empresas WHERE emp='Con Logo'"_s).toByteArray(), bytes(png));
        QCOMPARE(valor(db, u"SELECT logo FROM empresas WHERE cod=2"_s).toByteArray(), bytes(jpg));
        QCOMPARE(filas(db, u"SELECT emp FROM empresas WHERE logo IS NULL AND cod>7 ORDER BY cod"_s),
                 (QStringList{u"Sin Logo"_s, u"Cancelada"_s}));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM empresas WHERE logo IS NOT NULL"_s).toInt(), 2);
    }
};

QTEST_MAIN(PruebaEmpresas)
#include "prueba_empresas.moc"
