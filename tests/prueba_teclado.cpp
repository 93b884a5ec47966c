// A clerk without a mouse, with a screen reader: every control that takes
// the focus has a name, every grid is a table of its visible columns with its
// titles as words, Tab goes round every control without getting stuck, and
// in every dialog with a pick a record is opened, changed, saved and removed
// with keys alone.
#include "tests/prueba_estructura.h"

#include "core/Accesibilidad.h"
#include "core/AlfarjeAccesible.h"
#include "core/Controles.h"

#include <QAccessible>
#include <QApplication>
#include <QHeaderView>
#include <QSet>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

using Abrir = std::function<void(clsNomencla&, QSqlDatabase&, QSqlDatabase&)>;

QString nombreAccesible(QObject* o)
{
    QAccessibleInterface* i = QAccessible::queryAccessibleInterface(o);
    return i ? i->text(QAccessible::Name) : QString();
}

QWidget* foco(QWidget* d) { return d->focusWidget(); }

void pulsarTecla(QWidget* d, Qt::Key k) { QTest::keyClick(foco(d) ? foco(d) : d, k); }

// Tab until `nombre` has the focus; false after a full round without it.
bool irA(QWidget* d, const QString& nombre)
{
    for (int i = 0; i < 80; ++i) {
        if (foco(d) && foco(d)->objectName() == nombre)
            return true;
        pulsarTecla(d, Qt::Key_Tab);
    }
    return false;
}

// Tab to the grid, Home, then down to the row whose cell is `texto` (the row
// of the current cell: arriving by Tab selects nothing).
bool filaConTeclas(QWidget* d, Alfarje* gr, const QString& texto, int columna)
{
    if (!irA(d, u"GR"_s))
        return false;
    pulsarTecla(d, Qt::Key_Home);
    for (int i = 0; i <= gr->RowCount(); ++i) {
        if (gr->currentIndex().isValid() && gr->CellText(gr->currentIndex().row(), columna) == texto)
            return true;
        pulsarTecla(d, Qt::Key_Down);
    }
    return false;
}

// Answers each message box with the key Enter (its default button: Aceptar,
// or Sí in a question) and keeps its text.
class CajasConTeclado : public QObject {
public:
    CajasConTeclado()
    {
        connect(&timer_, &QTimer::timeout, this, [this] {
            auto* caja = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            if (!caja || !caja->isVisible() || atendidas_.contains(caja))
                return;
            atendidas_.append(caja);
            textos << caja->text();
            QTimer::singleShot(0, caja, [caja] { QTest::keyClick(caja->focusWidget() ? caja->focusWidget() : caja, Qt::Key_Return); });
        });
        timer_.start(5);
    }
    QStringList textos;

private:
    QTimer timer_;
    QList<QPointer<QMessageBox>> atendidas_; // boxes come and go at one address
};

Abrir metodo(Metodo m)
{
    return [m](clsNomencla& n, QSqlDatabase& db, QSqlDatabase&) { (n.*m)(u"1"_s, db); };
}

// Every dialog the host can open, with rows to show. Where there is a pick,
// `semilla` gives two records of the tenant and `clave` is the text of one
// in `columna` of GR, shown in `campo`: the keyboard round opens, changes,
// saves and removes it.
struct Dialogo {
    QString forma;
    Abrir abrir;
    QString semilla = {};
    QString clave = {};
    QString campo = u"Tx(0)"_s;
    int columna = 0;
    std::function<void(QWidget*)> revisar = {};
};

const QList<Dialogo>& dialogos()
{
    static const QList<Dialogo> lista{
        {u"frmLsCiudad"_s, metodo(&clsNomencla::Ciudades), u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Quito')"_s},
        {u"frmLsDepartam"_s, metodo(&clsNomencla::Departamentos)},
        {u"frmLsContenido"_s, metodo(&clsNomencla::Contenidos)},
        {u"frmMedidas"_s, metodo(&clsNomencla::Medidas)},
        {u"frmLsCategorias"_s, metodo(&clsNomencla::CategoriaClientes),
         u"INSERT INTO mCatClie (id,cod,cat,des) VALUES ('1',1,'Mayorista','a'),('1',2,'Minorista','b')"_s, u"Minorista"_s},
        {u"frmLsDocAutSRI"_s, metodo(&clsNomencla::DocumentAutorizSRI),
         u"INSERT INTO SRI_Documentos (id,cin,des) VALUES ('1','01','Factura'),('1','04','Nota')"_s, u"04"_s},
        {u"frmLsSustentos"_s, metodo(&clsNomencla::SustentoTributario),
         u"INSERT INTO SRI_Sustentos (id,cin,des) VALUES ('1','01','Crédito'),('1','02','Costo')"_s, u"02"_s},
        {u"frmLsCargos"_s, metodo(&clsNomencla::Cargos),
         u"INSERT INTO Cargos (id,car,des) VALUES ('1','Cajero','a'),('1','Gerente','b')"_s, u"Gerente"_s},
        {u"frmLsTipoCli"_s, metodo(&clsNomencla::TipoClientes),
         u"INSERT INTO mTipClie (id,cod,tip,des) VALUES ('1',1,'Contado','a'),('1',2,'Credito','b')"_s, u"Credito"_s},
        {u"frmLsZona"_s, metodo(&clsNomencla::ZonaClientes),
         u"INSERT INTO mZonaClie (id,cod,zon,des) VALUES ('1',1,'Norte','a'),('1',2,'Sur','b')"_s, u"Sur"_s},
        {u"frmLsContratos"_s, metodo(&clsNomencla::Contratos),
         u"INSERT INTO lscontratos (id,con) VALUES ('1','Fijo'),('1','Temporal')"_s, u"Temporal"_s, u"Text1"_s},
        {u"frmLsCuentas"_s, metodo(&clsNomencla::Cuentas),
         u"INSERT INTO lsCuentas (id,cta) VALUES ('1','Ahorros'),('1','Corriente')"_s, u"Corriente"_s, u"Text1"_s},
        {u"frmLsPaises"_s, metodo(&clsNomencla::Paises),
         u"INSERT INTO lsPaises (id,nom) VALUES ('1','Ecuador'),('1','Colombia')"_s, u"Colombia"_s, u"Text1"_s},
        {u"frmLsBancos"_s, metodo(&clsNomencla::Bancos),
         u"INSERT INTO lsBancos (id,nom) VALUES ('1','Pichincha'),('1','Guayaquil')"_s, u"Guayaquil"_s, u"Text1"_s},
        {u"frmEmpresas"_s, metodo(&clsNomencla::Empresas),
         u"INSERT INTO empresas (id,emp,suc,dir,tel,ciu,prov,art,selec) VALUES "
         "('1','Andina',1,'Av. 1','022','Quito','Pichincha',1,0),('1','Costa',1,'Av. 2','042','Manta','Manabí',0,1)"_s,
         u"Costa"_s, u"Tx(0)"_s, 0, [](QWidget* d) { // ARTESANO and SERV. ELEC.: check boxes with their state
             auto* gr = control<Alfarje>(d, u"GR"_s);
             auto* t = QAccessible::queryAccessibleInterface(gr)->tableInterface();
             const int fila = filaCon(gr, u"Andina"_s);
             const QAccessible::State artesano = t->cellAt(fila, 2)->state(), servicios = t->cellAt(fila, 3)->state();
             QVERIFY(artesano.checkable && artesano.checked && servicios.checkable && !servicios.checked);
             QVERIFY(!t->cellAt(fila, 0)->state().checkable);
             QCOMPARE(t->cellAt(fila, 0)->text(QAccessible::Name), u"Andina"_s);
         }},
        {u"frmSucursales"_s, metodo(&clsNomencla::Sucursales),
         u"INSERT INTO empresas (id,emp) VALUES ('1','Andina');\nINSERT INTO Sucursales (id,emp,ciu,nom,dir) VALUES "
         "('1','Andina','Quito','Matriz','Av. 1'),('1','Andina','Loja','Sur','Av. 2')"_s,
         u"Sur"_s, u"Tx(1)"_s, 1},
        {u"frmSubProveedor"_s, [](clsNomencla& n, QSqlDatabase& db, QSqlDatabase&) { n.SubProveedores(u"1"_s, 7, db); },
         u"INSERT INTO mProveedor (cod,nom,ced) VALUES (7,'Distribuidora','1790000000001');\n"
         "INSERT INTO SubProveedor (id,prov,cin,ruc,raz) VALUES ('1',7,'A1','1790000000001','Uno'),"
         "('1',7,'B2','1790000000002','Dos')"_s,
         u"B2"_s, u"Tx(0)"_s, 0, [](QWidget* d) { // the tab order starts at the tax number, then the code
             QCOMPARE(foco(d)->objectName(), u"Tx(1)"_s);
             pulsarTecla(d, Qt::Key_Tab);
             QCOMPARE(foco(d)->objectName(), u"Tx(0)"_s);
         }},
        {u"frmPendientes"_s,
         [](clsNomencla& n, QSqlDatabase& db, QSqlDatabase& acces) { n.FacturasPendientes(u"1"_s, QString(), db, acces); }},
        {u"frmImpresion"_s, [](clsNomencla& n, QSqlDatabase& db, QSqlDatabase&) { n.ElegirModeloImpresion(u"1"_s, db, impFactura); },
         u"INSERT INTO disenfacturacab (cod,id,nom,doc) VALUES (1,'1','Carta',0),(2,'1','A4',0)"_s},
        {u"frmLotes"_s, [](clsNomencla& n, QSqlDatabase& db, QSqlDatabase&) {
             InfoLotes info;
             n.AgregarLoteCaducidad(u"1"_s, db, info);
         }},
        {u"frmCaducidades"_s, [](clsNomencla& n, QSqlDatabase& db, QSqlDatabase&) { n.SeleccionarLote(u"1"_s, db, 1); }},
        {u"frmListaFacPaga"_s, [](clsNomencla& n, QSqlDatabase& db, QSqlDatabase&) { n.ListaFacturasCanceladas(u"1"_s, 10, db); },
         u"INSERT INTO tcabfac (cod,estab,pem,num) VALUES (1,'001','002',345);\n"
         "INSERT INTO tCabPagoCli (cod,id,fec,frm,cap,inte) VALUES (10,'1','2024-03-05',3,60.10,0.10);\n"
         "INSERT INTO tCuePagoCli (cab,fac,cap,inte) VALUES (10,1,60.10,0.10)"_s},
        {u"frmListaFechasIVA"_s, [](clsNomencla& n, QSqlDatabase& db, QSqlDatabase&) { n.ListaFechasIVA(u"1"_s, db); },
         u"INSERT INTO FechaIVAdif (id,fec,iva) VALUES ('1','%1-03-05',8)"_s.arg(QDate::currentDate().year())},
    };
    return lista;
}

} // namespace

class PruebaTeclado : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    QSqlDatabase acces;

private Q_SLOTS:
    void initTestCase()
    {
        acces = almacenPendientes();
        ejecutarSql(acces, u"DELETE FROM BkUpfac;\nINSERT INTO BkUpfac (id,cod,numdoc,tip) VALUES ('1',11,'001-001-11',1)"_s);
    }

    void init() { db = baseNueva(u"t_teclado"_s); }

    void titulos_hablados()
    {
        QCOMPARE(nomencla::tituloHablado(u" C I U D A D "_s), u"CIUDAD"_s);
        QCOMPARE(nomencla::tituloHablado(u"F E C H A  F E R I A D O"_s), u"FECHA FERIADO"_s);
        QCOMPARE(nomencla::tituloHablado(u"SERV. ELEC."_s), u"SERV. ELEC."_s);
        QCOMPARE(nomencla::tituloHablado(u"DESCRIPCION DE LA CATEGORÍA   "_s), u"DESCRIPCION DE LA CATEGORÍA"_s);
    }

    // Names, tables and the Tab round of every dialog.
    void cada_dialogo_data() { porCaso(dialogos(), [](const Dialogo& d) { return d.forma; }); }
    void cada_dialogo()
    {
        QFETCH(int, i);
        const Dialogo& dlg = dialogos()[i];
        if (!dlg.semilla.isEmpty())
            ejecutarSql(db, dlg.semilla);
        bool visto = false;
        alAbrir(dlg.forma, [&](QWidget* d) {
            visto = true;
            QStringList sinNombre, enRonda;
            const auto controles = nomencla::controlesEnfocables(d->findChild<QWidget*>(u"lienzo"_s));
            for (QWidget* w : controles) {
                if (w->isVisibleTo(d) && nombreAccesible(w).trimmed().isEmpty())
                    sinNombre << w->objectName();
                if (w->isVisibleTo(d) && w->isEnabled())
                    enRonda << w->objectName();
            }
            QCOMPARE(sinNombre, QStringList());

            // Each grid: exactly its visible columns, with their titles as
            // words; a totals line is read as the grid's last child.
            const auto grillas = d->findChildren<Alfarje*>();
            for (Alfarje* gr : grillas) {
                QAccessibleInterface* tabla = QAccessible::queryAccessibleInterface(gr);
                auto* t = tabla->tableInterface();
                QVERIFY(t);
                QStringList vistos, leidos, totales, totalesLeidos;
                for (int c = 0; c < gr->model()->columnCount(); ++c) {
                    if (gr->horizontalHeader()->isSectionHidden(c))
                        continue;
                    vistos << nomencla::tituloHablado(gr->model()->headerData(c, Qt::Horizontal).toString());
                    if (!gr->ColumnTotalText(c).isEmpty())
                        totales << gr->ColumnTotalText(c);
                }
                for (int c = 0; c < t->columnCount(); ++c)
                    leidos << t->columnDescription(c);
                QCOMPARE(leidos, vistos);
                QCOMPARE(t->rowCount(), gr->RowCount());
                QWidget* linea = gr->findChild<QWidget*>(u"GR.totales"_s);
                QCOMPARE(linea && linea->isVisible(), dlg.forma == u"frmListaFacPaga"_s);
                if (linea && linea->isVisible()) {
                    QAccessibleInterface* ultimo = tabla->child(tabla->childCount() - 1);
                    QCOMPARE(ultimo, QAccessible::queryAccessibleInterface(linea));
                    for (int k = 0; k < ultimo->childCount(); ++k)
                        totalesLeidos << ultimo->child(k)->text(QAccessible::Name);
                    QVERIFY(!totales.isEmpty());
                    QCOMPARE(totalesLeidos, totales);
                }
            }
            if (dlg.revisar)
                dlg.revisar(d);

            // Tab goes round every enabled control and comes back.
            QWidget* inicio = foco(d);
            QVERIFY(inicio);
            QSet<QString> alcanzados;
            bool salio = false, volvio = false; // a date box takes a Tab per part
            for (int k = 0; k < 6 * int(enRonda.size()) + 20 && !volvio; ++k) {
                pulsarTecla(d, Qt::Key_Tab);
                alcanzados.insert(foco(d)->objectName());
                salio = salio || foco(d) != inicio || enRonda.size() == 1;
                volvio = salio && foco(d) == inicio;
            }
            QVERIFY(volvio);
            for (const QString& n : std::as_const(enRonda))
                QVERIFY2(alcanzados.contains(n), qPrintable(n));
        });
        clsNomencla nomencla;
        dlg.abrir(nomencla, db, acces);
        QVERIFY(visto);
    }

    // The pickers that chose on Enter before still choose once: Tab to the
    // list, Down, Enter gives the row's code.
    void selectores_con_enter()
    {
        ejecutarSql(db, u"INSERT INTO martexpira (cod,art,bod,lot,can,fec,pro,est) VALUES "
                        "(31,1,1,'L-1',5,'2099-01-01',NULL,1),(32,1,1,'L-2',5,'2099-01-01',NULL,1)"_s);
        int picks = 0;
        alAbrir(u"frmCaducidades"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            connect(gr, &Alfarje::Click, d, [&picks] { ++picks; });
            QVERIFY(filaConTeclas(d, gr, u"L-2"_s, 0));
            pulsarTecla(d, Qt::Key_Return);
        });
        clsNomencla nomencla;
        QCOMPARE(nomencla.SeleccionarLote(u"1"_s, db, 1), 32);
        QCOMPARE(picks, 1);
        alAbrir(u"frmPendientes"_s, [&](QWidget* d) { pulsarTecla(d, Qt::Key_Return); });
        QCOMPARE(nomencla.FacturasPendientes(u"1"_s, QString(), db, acces), 11);
    }

    // Enter on a row of a grid opens the record, once; the rest by keys.
    void ronda_con_teclado_data()
    {
        QTest::addColumn<int>("i");
        for (int i = 0; i < int(dialogos().size()); ++i)
            if (!dialogos()[i].clave.isEmpty())
                QTest::newRow(qPrintable(dialogos()[i].forma)) << i;
    }
    void ronda_con_teclado()
    {
        QFETCH(int, i);
        const Dialogo& r = dialogos()[i];
        ejecutarSql(db, r.semilla);
        const QString cambiado = r.clave + u"Z"_s;
        CajasConTeclado cajas;
        bool hecho = false;
        alAbrir(r.forma, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            int picks = 0;
            connect(gr, &Alfarje::Click, d, [&picks] { ++picks; });
            QVERIFY(filaConTeclas(d, gr, r.clave, r.columna));
            pulsarTecla(d, Qt::Key_Return);
            QCOMPARE(picks, 1);
            QCOMPARE(textoDe(d, r.campo), r.clave);
            if (auto* banner = d->findChild<QLabel*>(u"Label2"_s)) { // shown at the change: announced
                QVERIFY2(banner->text().startsWith(u"MODIFICANDO"_s), qPrintable(banner->text()));
                auto* pregonero = control<QWidget>(banner, u"Label2.anuncio"_s);
                QAccessibleInterface* anuncio = QAccessible::queryAccessibleInterface(pregonero);
                QVERIFY(pregonero->isVisible());
                QCOMPARE(anuncio->role(), QAccessible::Notification);
                QCOMPARE(anuncio->text(QAccessible::Name), banner->text());
            }
            QVERIFY(cajas.textos.isEmpty()); // Enter pressed no button

            QVERIFY(irA(d, r.campo));
            pulsarTecla(d, Qt::Key_End);
            QTest::keyClicks(foco(d), u"Z"_s);
            QVERIFY(irA(d, u"Bt(0)"_s));
            pulsarTecla(d, Qt::Key_Space);
            QTRY_VERIFY2(filaCon(gr, cambiado, r.columna) >= 0, qPrintable(cajas.textos.join(u" / "_s)));
            QVERIFY(filaCon(gr, r.clave, r.columna) < 0);

            QVERIFY(filaConTeclas(d, gr, cambiado, r.columna));
            pulsarTecla(d, Qt::Key_Enter); // the keypad's
            QCOMPARE(picks, 2);
            QVERIFY(irA(d, u"Bt(1)"_s));
            pulsarTecla(d, Qt::Key_Space);
            QTRY_VERIFY(filaCon(gr, cambiado, r.columna) < 0);
            hecho = true;
        });
        clsNomencla nomencla;
        r.abrir(nomencla, db, acces);
        QVERIFY(hecho);
        QVERIFY2(cajas.textos.size() >= 2, qPrintable(cajas.textos.join(u" / "_s))); // saved, and the removal asked
    }
};

QTEST_MAIN(PruebaTeclado)
#include "prueba_teclado.moc"
