// The pickers and viewers of documents: pending documents, print models, the
// invoices of a payment and the VAT dates, ended in every way a clerk can.
#include "tests/prueba_estructura.h"

#include "core/Controles.h"

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QLabel>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

enum Final { Enter, DobleClic, Esc, Cierre };

// Ends dialog `d` the way a clerk would, on its control `foco`.
void terminar(QWidget* d, QWidget* foco, Final f, int fila = 0)
{
    if (f == Cierre)
        d->close();
    else if (f == DobleClic)
        dobleClic(qobject_cast<Alfarje*>(foco), fila);
    else
        tecla(foco, f == Enter ? Qt::Key_Return : Qt::Key_Escape);
}

// What the grid shows in a cell, through its column format.
QString mostrado(Alfarje* gr, int fila, int columna)
{
    return gr->model()->index(fila, columna).data().toString();
}

} // namespace

class PruebaSelectores : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    QSqlDatabase acces;
    clsNomencla nomencla;

private Q_SLOTS:
    void initTestCase()
    {
        acces = almacenPendientes();
        ejecutarSql(acces, u"DELETE FROM BkUpfac;\n"
                           "INSERT INTO BkUpfac (id,cod,numdoc,tip) VALUES "
                           "('1',11,'001-001-11',1),('1',11,'001-001-11',1),('1',12,'001-001-12a',1),('1',12,'001-001-12b',1),"
                           "('1',13,NULL,1),('1',21,'001-002-21',0),('2',31,'002-001-31',1),('2',41,'002-002-41',0),"
                           "('',51,'000-000-51',0)"_s);
    }

    void init() { db = baseNueva(u"t_selectores"_s); }

    // Only the company's documents of the kind, each pair once, a Null number
    // as an empty cell; a key with quotes matches nothing and the empty list
    // stays open until ended. Enter and double click give the row's code; a
    // marked row left with Esc is no choice, even after an earlier pick.
    void pendientes()
    {
        const QStringList deUno{u"11|001-001-11"_s, u"12|001-001-12a"_s, u"12|001-001-12b"_s, u"13|"_s};
        const struct { QString empresa; int fila; Final final; bool elige; QStringList lista; } casos[] = {
            {u"1"_s, 2, Enter, true, deUno},
            {u"1"_s, 3, DobleClic, true, deUno},
            {u"1"_s, 2, Esc, false, deUno},
            {u"1' OR '1'='1"_s, -1, Enter, false, {}}};
        for (const auto& c : casos) {
            qint32 esperado = 0;
            bool abierto = false;
            QStringList vistos;
            alAbrir(u"frmPendientes"_s, [&](QWidget* d) {
                QTest::qWait(50);
                abierto = d->isVisible();
                auto* gr = control<Alfarje>(d, u"GR"_s);
                for (int i = 0; i < gr->RowCount(); ++i)
                    vistos << gr->CellText(i, 0) + u'|' + gr->CellText(i, 1);
                gr->setRow(c.fila);
                if (c.elige)
                    esperado = gr->CellText(c.fila, 0).toInt();
                terminar(d, gr, c.final, c.fila);
                QVERIFY(!d->isVisible());
            });
            const qint32 r = nomencla.FacturasPendientes(c.empresa, QString(), db, acces);
            QCOMPARE(r, esperado);
            QVERIFY(abierto);
            vistos.sort();
            QCOMPARE(vistos, c.lista);
        }
    }

    // A pending document whose key is not a whole 32-bit number is listed,
    // and choosing it says so and leaves the list open; the largest and
    // smallest keys that fit are handed back.
    void pendiente_fuera_de_rango()
    {
        const struct { QString cod; bool cabe; } casos[] = {
            {u"2147483647"_s, true}, {u"-2147483648"_s, true}, {u"2147483648"_s, false},
            {u"-2147483649"_s, false}, {u"9223372036854775807"_s, false}, {u"12.5"_s, false}, {u"NULL"_s, false}};
        for (const auto& c : casos) {
            ejecutarSql(acces, u"DELETE FROM BkUpfac WHERE id='9';\n"
                               "INSERT INTO BkUpfac (id,cod,numdoc,tip) VALUES ('9',%1,'001-001-000000007',1)"_s.arg(c.cod));
            Cajas cajas;
            QString listado;
            bool abierta = false;
            alAbrir(u"frmPendientes"_s, [&](QWidget* d) {
                auto* gr = control<Alfarje>(d, u"GR"_s);
                listado = gr->CellText(0, 0) + u'|' + gr->CellText(0, 1);
                tecla(gr, Qt::Key_Return);
                abierta = d->isVisible();
                if (abierta)
                    tecla(gr, Qt::Key_Escape);
            });
            const qint32 r = nomencla.FacturasPendientes(u"9"_s, QString(), db, acces);
            const QString motivo = c.cod == u"NULL"_s
                ? u"no tiene código de referencia."_s
                : u"su código de referencia (%1) no es un número entero entre -2147483648 y 2147483647."_s.arg(c.cod);
            QCOMPARE(listado, (c.cod == u"NULL"_s ? QString() : c.cod) + u"|001-001-000000007"_s);
            QCOMPARE(abierta, !c.cabe);
            QCOMPARE(r, c.cabe ? qint32(c.cod.toLongLong()) : 0);
            QCOMPARE(cajas.vistas.size(), c.cabe ? 0 : 1);
            if (!c.cabe) {
                QCOMPARE(cajas.vistas[0].icono, QMessageBox::Warning);
                QCOMPARE(cajas.vistas[0].texto, u"El comprobante 001-001-000000007 no se puede elegir: "_s + motivo);
            }
        }
        ejecutarSql(acces, u"DELETE FROM BkUpfac WHERE id='9'"_s);
    }

    // Sales take the company of the last call; before any, the empty key.
    void pendientes_de_ventas()
    {
        const auto enter = [](QWidget* d) { tecla(control<Alfarje>(d, u"GR"_s), Qt::Key_Return); };
        nomencla.ConfirmaUsuario(QString(), db); // as before any call of the host
        alAbrir(u"frmPendientes"_s, enter);
        QCOMPARE(nomencla.FacturasPendientesVentas(QString(), db, acces), 51);
        alAbrir(u"frmPendientes"_s, enter);
        nomencla.FacturasPendientes(u"2"_s, QString(), db, acces);
        alAbrir(u"frmPendientes"_s, enter);
        QCOMPARE(nomencla.FacturasPendientesVentas(QString(), db, acces), 41);
    }

    // The company's models of the kind, by name; Enter and Esc take the one
    // shown, the close box
    // 0. A single model is still shown; with none the dialog closes by itself
    // with 0, even after an earlier pick.
    void impresion_finales()
    {
        ejecutarSql(db, u"INSERT INTO disenfacturacab (cod,id,nom,doc) VALUES "
                        "(1,'1','Factura media hoja',0),(2,'1','Factura A4',0),(3,'2','Factura ajena',0),"
                        "(4,'1','Guía A4',10),(5,'1','Retención',5),(8,'2','Recibo ajeno',8)"_s);
        const QStringList facturas{u"Factura A4"_s, u"Factura media hoja"_s};
        const struct { int tipo; int indice; Final final; qint32 esperado; QStringList modelos; } casos[] = {
            {impFactura, 1, Enter, 1, facturas},
            {impFactura, -1, Esc, 2, facturas},
            {impFactura, 1, Cierre, 0, facturas},
            {impGuia, -1, Enter, 4, {u"Guía A4"_s}}};
        for (const auto& c : casos) {
            QStringList lista;
            alAbrir(u"frmImpresion"_s, [&](QWidget* d) {
                auto* cmb = control<QComboBox>(d, u"Cmb"_s);
                for (int i = 0; i < cmb->count(); ++i)
                    lista << cmb->itemText(i);
                if (c.indice >= 0)
                    cmb->setCurrentIndex(c.indice);
                terminar(d, cmb, c.final);
                QVERIFY(!d->isVisible());
            });
            QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, TipoDocImpresion(c.tipo)), c.esperado);
            QCOMPARE(lista, c.modelos);
        }

        bool tuvoQueCerrar = false;
        QTimer vigia; // should it stay open, the test fails instead of hanging
        vigia.callOnTimeout([&] { tuvoQueCerrar = QMetaObject::invokeMethod(QApplication::activeModalWidget(), "reject"); });
        vigia.start(3000);
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, impRecibo), 0);
        QVERIFY(!tuvoQueCerrar);
    }

    // Header, lines with their amounts and totals, only of the company's own
    // payment.
    void pago_detalle()
    {
        ejecutarSql(db, u"INSERT INTO tcabfac (cod,estab,pem,num) VALUES (1,'001','002',345),(2,'001','002',346),(3,'002','001',7);\n"
                        "INSERT INTO tCabPagoCli (cod,id,fec,frm,cap,inte) VALUES (10,'1','2024-03-05',3,100.50,0.25),"
                        "(12,'2','2024-01-03',0,9,0);\n"
                        "INSERT INTO tCuePagoCli (cab,fac,cap,inte) VALUES (10,1,60.10,0.10),(10,2,40.20,0.20),(12,3,9,0)"_s);
        const QString marzo = nomencla::localeEcuador().toString(QDate(2024, 3, 5), u"dd-MMM-yyyy"_s);
        // Header, then each line, then the totals.
        const struct { QString empresa; qint32 pago; QStringList vista; } casos[] = {
            {u"1"_s, 10, {marzo + u"|Tarj. crédito|100.75"_s, u"001-002-345|60.10|0.10|60.20"_s,
                          u"001-002-346|40.20|0.20|40.40"_s, u"100.3|0.3|100.6"_s}},
            {u"1"_s, 12, {u"||"_s, u"0|0|0"_s}}};
        for (const auto& c : casos) {
            QStringList vista;
            alAbrir(u"frmListaFacPaga"_s, [&](QWidget* d) {
                const auto etiqueta = [d](int i) { return control<QLabel>(d, u"Label2(%1)"_s.arg(i))->text(); };
                vista << QStringList{etiqueta(0), etiqueta(1), etiqueta(2)}.join(u'|');
                auto* gr = control<Alfarje>(d, u"GR"_s);
                for (int i = 0; i < gr->RowCount(); ++i)
                    vista << QStringList{gr->CellText(i, 0), mostrado(gr, i, 1), mostrado(gr, i, 2), mostrado(gr, i, 3)}
                                 .join(u'|');
                vista << QStringList{gr->ColumnTotalText(1), gr->ColumnTotalText(2), gr->ColumnTotalText(3)}.join(u'|');
            });
            nomencla.ListaFacturasCanceladas(c.empresa, c.pago, db);
            QCOMPARE(vista, c.vista);
        }
    }

    // This year's dates of the company; setting a listed date selects its
    // row. That date is refused as a new one, and a removal answered No keeps
    // it; no date changes (other years, the limits, none).
    void fechas_iva()
    {
        const int anio = QDate::currentDate().year();
        const QDate marzo(anio, 3, 5);
        ejecutarSql(db, u"INSERT INTO FechaIVAdif (id,fec,iva) VALUES ('1','%1',8),('1','%2-01-10',8),('1','%3-12-31',8),"
                        "('2','%1',8),('1','1000-01-01',8),('1','9999-12-31',12),('1',NULL,8)"_s
                            .arg(marzo.toString(Qt::ISODate)).arg(anio).arg(anio - 1));
        const QStringList antes = foto(db, u"FechaIVAdif"_s);
        Cajas cajas;
        alAbrir(u"frmListaFechasIVA"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QCOMPARE(gr->RowCount(), 2);
            control<QDateEdit>(d, u"DT"_s)->setDate(marzo);
            QCOMPARE(gr->Row(), 1);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.ultima(), u"La fecha que intenta guardar ya está registrada en la base de datos!"_s);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(2)"_s);
        });
        nomencla.ListaFechasIVA(u"1"_s, db);
        QCOMPARE(foto(db, u"FechaIVAdif"_s), antes);
    }
};

QTEST_MAIN(PruebaSelectores)
#include "prueba_selectores.moc"
