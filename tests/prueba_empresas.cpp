// The companies, branches and sub-suppliers dialogs: their refusals, the
// numbers they store, the logo, the lists they offer.
#include "tests/prueba_estructura.h"

#include "core/Controles.h"

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
    for (int i = 2; i <= 5; ++i)
        tx(d, i)->setText(u"Quito"_s);
}

} // namespace

class PruebaEmpresas : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;

    void companias()
    {
        ejecutarSql(db, u"INSERT INTO empresas (cod,id,emp,act,suc,selec,art,nart,dir,tel,ciu,prov) VALUES "
                        "(2,'1','Comercial Dos',1,2,1,1,'A-7','Calle 2','023','Ambato','Tungurahua');\n"
                        "INSERT INTO empresas (cod,id,emp,est) VALUES (1,'1','Andina Matriz',1),"
                        "(3,'1','Sin Sucursales',1),(4,'1','Vieja',0),(5,'2','Solo Otra',1),(6,'3','Sola',1);\n"
                        "INSERT INTO Sucursales (id,emp,nom,est) VALUES "
                        "('1','Comercial Dos','A',1),('1','Sin Sucursales','E',0)"_s);
    }

private Q_SLOTS:
    void init() { db = baseNueva(u"t_empresas"_s); }

    // A refused save names the missing field; a name is a duplicate among
    // the active companies of every tenant, whatever the blanks and case;
    // activity and boxes are stored as numbers. Key 1 is never removed;
    // active branches refuse the removal, removed ones don't, and the
    // question names the company. A tenant's only company stays.
    void guardar_y_quitar()
    {
        companias();
        Cajas cajas;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            llenar(d, u"  comercial dos "_s);
            tx(d, 5)->setText(u"   "_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.at(0).texto, u"Debe especificar la provincia"_s);
            tx(d, 5)->setText(u"Quito"_s);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Ya existe una empresa con ese nombre!"_s);
            tx(d, 0)->setText(u" Solo Otra "_s); // another tenant's
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"Ya existe una empresa con ese nombre!"_s);
            tx(d, 0)->setText(u"Solo Uno"_s);
            pulsar(d, u"Bt(0)"_s);
            llenar(d, u"Vieja"_s);
            control<QComboBox>(d, u"Combo4"_s)->setCurrentIndex(8);
            control<QCheckBox>(d, u"Check1(0)"_s)->click();
            control<QCheckBox>(d, u"Check1(1)"_s)->click();
            tx(d, 6)->setText(u"N-1"_s);
            pulsar(d, u"Bt(0)"_s);

            dobleClic(gr, filaCon(gr, u"Andina Matriz"_s));
            QVERIFY(!control<QWidget>(d, u"Bt(1)"_s)->isEnabled());
            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.ultima(), u"No se puede eliminar la empresa ya que existen sucursales asignadas a ella"_s);
            dobleClic(gr, filaCon(gr, u"Sin Sucursales"_s));
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(1)"_s);
            QCOMPARE(cajas.vistas[cajas.vistas.size() - 2].texto,
                     u"Está seguro que desea quitar la Empresa ''Sin Sucursales'' de la base de datos?"_s);
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            dobleClic(control<Alfarje>(d, u"GR"_s), 0);
            pulsar(d, u"Bt(1)"_s);
        });
        QVERIFY(!nomencla.Empresas(u"3"_s, db));
        QCOMPARE(cajas.ultima(), u"No se puede eliminar esta empresa ya que debe haber al menos una empresa activa!"_s);
        QCOMPARE(filas(db, u"SELECT id,emp,act,suc,selec,art,nart,dir,est FROM empresas WHERE cod>6 ORDER BY cod"_s),
                 (QStringList{u"1|Solo Uno|-1|1|0|0||Quito|1"_s,
                              u"1|Vieja|8|1|1|1|N-1|Quito|1"_s}));
        QCOMPARE(filas(db, u"SELECT emp,est FROM empresas WHERE cod IN (3,6) ORDER BY cod"_s),
                 (QStringList{u"Sin Sucursales|0"_s, u"Sola|1"_s}));
    }

    // The logo: refused when not a picture (its size limit is proved with the
    // services); stored by the save after the choice only, new company or
    // picked one; shown when its company is picked.
    void logo()
    {
        companias();
        QTemporaryDir dir;
        const QString png = dir.filePath(u"logo.png"_s);
        QImage imagen(40, 20, QImage::Format_RGB32);
        imagen.fill(Qt::darkBlue);
        QVERIFY(imagen.save(png, "PNG"));

        QString eleccion;
        nomencla::setElectorArchivo([&](QWidget*, const QString&, const QString&) { return eleccion; });
        Cajas cajas;
        alAbrir(u"frmEmpresas"_s, [&](QWidget* d) {
            auto* p1 = control<QLabel>(d, u"P1"_s);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto elegir = [&](const QString& ruta) {
                eleccion = ruta;
                QTest::mouseClick(p1, Qt::LeftButton);
            };
            elegir(QStringLiteral(NOMENCLA_FUENTES "/tests/prueba_empresas.cpp"));
            QVERIFY(cajas.ultima().contains(u"no es una imagen"_s));
            elegir(png);
            QCOMPARE(cajas.vistas.size(), 1);
            llenar(d, u"Con Logo"_s);
            pulsar(d, u"Bt(0)"_s);
            llenar(d, u"Sin Logo"_s);
            pulsar(d, u"Bt(0)"_s);

            dobleClic(gr, filaCon(gr, u"Comercial Dos"_s));
            elegir(png);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, filaCon(gr, u"Con Logo"_s));
            QVERIFY(!p1->pixmap().isNull());
            dobleClic(gr, filaCon(gr, u"Andina Matriz"_s));
            QVERIFY(p1->pixmap().isNull());
        });
        QVERIFY(nomencla.Empresas(u"1"_s, db));
        nomencla::setElectorArchivo({});
        QFile f(png);
        QVERIFY(f.open(QIODevice::ReadOnly));
        QCOMPARE(filas(db, u"SELECT emp, logo=? FROM empresas WHERE logo IS NOT NULL ORDER BY cod"_s, {f.readAll()}),
                 (QStringList{u"Comercial Dos|1"_s, u"Con Logo|1"_s}));
    }

    // The combo offers this tenant's active companies and follows a pick; a
    // company no longer offered shows as none and stays the branch's; the address typed is
    // looked for among the cities, yet a pick shows the picked row; key 1 and
    // status 2 can't be removed. A save needs an active company.
    void sucursales()
    {
        ejecutarSql(db, u"INSERT INTO empresas (cod,id,emp,est) VALUES "
                        "(1,'1','Andina',1),(2,'1','Bodega Sur',1),(3,'1','Cerrada',0),(4,'2','Otra Empresa',1);\n"
                        "INSERT INTO Sucursales (cod,id,emp,ciu,nom,dir,est) VALUES "
                        "(1,'1','Andina','Quito','Matriz','',1),(2,'1','Andina','Loja','Centro','Machala y Bolívar',2),"
                        "(3,'1','Bodega Sur','Machala','Puerto','',1),(4,'1','Cerrada','Ambato','Vieja','Calle 4',1),"
                        "(5,'2','Otra Empresa','Manta','X','',1),(6,'1','Andina','Zamora','Quitada','',0)"_s);
        Cajas cajas;
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            auto* quitar = control<QWidget>(d, u"Bt(1)"_s);
            QCOMPARE(cmb->count(), 2);
            QCOMPARE(gr->RowCount(), 4);
            teclear(tx(d, 2), u"mach"_s);
            QCOMPARE(gr->Row(), filaCon(gr, u"Machala"_s, 2));

            const int centro = filaCon(gr, u"Centro"_s, 1);
            dobleClic(gr, centro);
            QCOMPARE(gr->Row(), centro);
            QVERIFY(!quitar->isEnabled());
            dobleClic(gr, filaCon(gr, u"Matriz"_s, 1));
            QVERIFY(!quitar->isEnabled());
            dobleClic(gr, filaCon(gr, u"Puerto"_s, 1));
            QVERIFY(quitar->isEnabled());
            QCOMPARE(cmb->currentText(), u"Bodega Sur"_s);

            cmb->setCurrentIndex(0);
            dobleClic(gr, filaCon(gr, u"Vieja"_s, 1));
            QCOMPARE(cmb->currentIndex(), -1);
            pulsar(d, u"Bt(0)"_s);
            dobleClic(gr, filaCon(gr, u"Centro"_s, 1));
            cmb->setCurrentIndex(1);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.Sucursales(u"1"_s, db));
        QCOMPARE(filas(db, u"SELECT emp FROM Sucursales WHERE cod IN (2,4) ORDER BY cod"_s),
                 (QStringList{u"Bodega Sur"_s, u"Cerrada"_s}));
        cajas.limpiar();
        alAbrir(u"frmSucursales"_s, [&](QWidget* d) {
            for (int i = 0; i < 4; ++i)
                tx(d, i)->setText(u"x"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(!nomencla.Sucursales(u"3"_s, db));
        QCOMPARE(cajas.vistas.at(0).texto, u"Debe especificar el nombre de la empresa"_s);
    }

    // The tenant's list; key 1 is never removed; an edit keeps its supplier,
    // a new one gets the dialog's, and a supplier that isn't there is told
    // and opens nothing. The search and the picks are proved with the branches.
    void subproveedores()
    {
        ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom,ced) VALUES (1,'Proveedor Uno','0990000000001');\n"
                        "INSERT INTO SubProveedor (cod,id,prov,cin,ruc,raz,est) VALUES "
                        "(1,'1',2,'A-01','0990','Raz Uno',1),(2,'1',2,'B-02','0991','Raz Dos',2),"
                        "(3,'2',1,'C-03','0992','Otro',1),(4,'1',1,'D-04','0993','Borrado',0)"_s);
        Cajas cajas;
        alAbrir(u"frmSubProveedor"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(gr->RowCount(), 2);
            dobleClic(gr, filaCon(gr, u"A-01"_s));
            pulsar(d, u"Bt(1)"_s);
            QVERIFY(cajas.vistas.isEmpty());
            dobleClic(gr, filaCon(gr, u"B-02"_s));
            tx(d, 2)->setText(u"Raz Dos Cambiada"_s);
            pulsar(d, u"Bt(0)"_s);
            tx(d, 0)->setText(u"E-05"_s);
            tx(d, 1)->setText(u"0991"_s);
            tx(d, 2)->setText(u"Nueva"_s);
            pulsar(d, u"Bt(0)"_s);
        });
        QVERIFY(nomencla.SubProveedores(u"1"_s, 1, db));
        QCOMPARE(filas(db, u"SELECT cod,prov,cin,ruc,raz,est FROM SubProveedor WHERE id='1' AND est>0 ORDER BY cod"_s),
                 (QStringList{u"1|2|A-01|0990|Raz Uno|1"_s, u"2|2|B-02|0991|Raz Dos Cambiada|2"_s,
                              u"5|1|E-05|0991|Nueva|1"_s}));

        cajas.limpiar();
        QVERIFY(!nomencla.SubProveedores(u"1"_s, 99, db));
        QCOMPARE(cajas.vistas.size(), 1);
        QVERIFY(cajas.ultima().contains(u"99"_s));
    }
};

QTEST_MAIN(PruebaEmpresas)
#include "prueba_empresas.moc"
