// The pickers and viewers of documents: pending documents, print models, the
// invoices of a payment and the VAT dates, ended in every way a clerk can.
#include "tests/support/Prueba.h"

#include "core/Alfarje.h"
#include "core/Controles.h"
#include "core/Module1.h"

#include <nomencla/clsNomencla.h>

#include <QApplication>
#include <QComboBox>
#include <QDateEdit>
#include <QFile>
#include <QLabel>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;
using nomencla::M;

namespace {

void dobleClic(Alfarje* gr, int fila)
{
    QTest::mouseDClick(gr->viewport(), Qt::LeftButton, {}, gr->visualRect(gr->model()->index(fila, 0)).center());
}

QStringList celdas(Alfarje* gr, int columna)
{
    QStringList r;
    for (int i = 0; i < gr->RowCount(); ++i)
        r << gr->CellText(i, columna);
    return r;
}

// What the grid shows in a cell, through its column format.
QString mostrado(Alfarje* gr, int fila, int columna)
{
    return gr->model()->index(fila, columna).data().toString();
}

// Closes a dialog that should have closed by itself, so the test fails
// instead of hanging. Watches only while it lives.
class VigiaCierre : public QTimer {
public:
    bool tuvoQueCerrar = false;
    VigiaCierre()
    {
        setSingleShot(true);
        connect(this, &QTimer::timeout, this, [this] {
            if (QWidget* d = QApplication::activeModalWidget()) {
                tuvoQueCerrar = true;
                QMetaObject::invokeMethod(d, "reject");
            }
        });
        start(3000);
    }
};

} // namespace

class PruebaSelectores : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    QSqlDatabase acces;
    clsNomencla nomencla;

private Q_SLOTS:
    void initTestCase()
    {
        // The second store of the host, as the demo has it: SQLite.
        acces = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"acces"_s);
        acces.setDatabaseName(u":memory:"_s);
        QVERIFY(acces.open());
        QFile tabla(QStringLiteral(NOMENCLA_FUENTES "/db/pendientes.sql"));
        QVERIFY(tabla.open(QIODevice::ReadOnly));
        ejecutarSql(acces, QString::fromUtf8(tabla.readAll()));
    }

    void init()
    {
        db = baseNueva(u"t_selectores"_s);
        ejecutarSql(acces, u"DELETE FROM BkUpfac;\n"
                           "INSERT INTO BkUpfac (id,cod,numdoc,tip) VALUES "
                           "('1',11,'001-001-11',1),('1',11,'001-001-11',1),('1',12,'001-001-12a',1),('1',12,'001-001-12b',1),"
                           "('1',13,NULL,1),('1',21,'001-002-21',0),('2',31,'002-001-31',1),('2',41,'002-002-41',0),"
                           "('',51,'000-000-51',0)"_s);
    }

    // Enter and double click give the row's code; Esc and the close box 0; the
    // list holds each pair once, a Null number as an empty cell.
    void pendientes_cada_final()
    {
        QStringList codigos, numeros;
        int filaInicial = -2;
        int elegido = 0;
        alAbrir(u"frmPendientes"_s, [&](QWidget* d) {
            QCOMPARE(d->windowTitle(), u"Lista de comprobantes no guardados"_s);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            codigos = celdas(gr, 0);
            numeros = celdas(gr, 1);
            filaInicial = gr->Row();
            gr->setRow(2);
            elegido = gr->CellText(2, 0).toInt();
            tecla(gr, Qt::Key_Return);
            QVERIFY(!d->isVisible());
        });
        qint32 r = nomencla.FacturasPendientes(u"1"_s, u"Empresa uno"_s, db, acces);
        QCOMPARE(r, elegido);
        QCOMPARE(filaInicial, 0);
        codigos.sort();
        QCOMPARE(codigos, (QStringList{u"11"_s, u"12"_s, u"12"_s, u"13"_s}));
        QVERIFY(numeros.contains(QString()));
        QVERIFY(numeros.contains(u"001-001-12a"_s) && numeros.contains(u"001-001-12b"_s));
        QCOMPARE(M().NombreEmpresa, u"Empresa uno"_s);

        alAbrir(u"frmPendientes"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            elegido = gr->CellText(3, 0).toInt();
            dobleClic(gr, 3);
            QVERIFY(!d->isVisible());
        });
        r = nomencla.FacturasPendientes(u"1"_s, QString(), db, acces);
        QCOMPARE(r, elegido);

        // Esc after a pick in an earlier opening: 0, not the old code.
        alAbrir(u"frmPendientes"_s, [&](QWidget* d) { tecla(control<Alfarje>(d, u"GR"_s), Qt::Key_Escape); });
        QCOMPARE(nomencla.FacturasPendientes(u"1"_s, QString(), db, acces), 0);

        alAbrir(u"frmPendientes"_s, [&](QWidget* d) { d->close(); });
        QCOMPARE(nomencla.FacturasPendientes(u"1"_s, QString(), db, acces), 0);
    }

    // Sales documents are the other kind, of the company the last call left;
    // the first call of all filters by the empty key.
    void pendientes_ventas_y_empresa_heredada()
    {
        QStringList vistos;
        const auto mirar = [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            vistos = celdas(gr, 0);
            tecla(gr, Qt::Key_Return);
        };
        M().IdEmp = QString(); // as before any call of the host
        nomencla.ConfirmaUsuario(QString(), db);
        alAbrir(u"frmPendientes"_s, mirar);
        QCOMPARE(nomencla.FacturasPendientesVentas(QString(), db, acces), 51);
        QCOMPARE(vistos, QStringList{u"51"_s});

        alAbrir(u"frmPendientes"_s, [](QWidget* d) { d->close(); });
        nomencla.FacturasPendientes(u"2"_s, QString(), db, acces);
        alAbrir(u"frmPendientes"_s, mirar);
        QCOMPARE(nomencla.FacturasPendientesVentas(QString(), db, acces), 41);
        QCOMPARE(vistos, QStringList{u"41"_s});
        QCOMPARE(M().IdEmp, u"2"_s);

        // A key with quotes is only a key: nothing matches it.
        alAbrir(u"frmPendientes"_s, mirar);
        QCOMPARE(nomencla.FacturasPendientes(u"1' OR '1'='1"_s, QString(), db, acces), 0);
        QVERIFY(vistos.isEmpty());
    }

    // An empty list stays open, and Enter on it gives 0; a store without the
    // table is reported and the dialog still ends with 0.
    void pendientes_lista_vacia_y_fallo()
    {
        Cajas cajas;
        bool abierto = false;
        alAbrir(u"frmPendientes"_s, [&](QWidget* d) {
            QTest::qWait(50);
            abierto = d->isVisible();
            QCOMPARE(control<Alfarje>(d, u"GR"_s)->RowCount(), 0);
            tecla(control<Alfarje>(d, u"GR"_s), Qt::Key_Return);
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(nomencla.FacturasPendientes(u"9"_s, QString(), db, acces), 0);
        QVERIFY(abierto);
        QVERIFY(cajas.vistas.isEmpty());

        ejecutarSql(acces, u"ALTER TABLE BkUpfac RENAME TO BkUpfacFuera"_s);
        alAbrir(u"frmPendientes"_s, [&](QWidget* d) { tecla(control<Alfarje>(d, u"GR"_s), Qt::Key_Return); });
        const qint32 r = nomencla.FacturasPendientes(u"1"_s, QString(), db, acces);
        ejecutarSql(acces, u"ALTER TABLE BkUpfacFuera RENAME TO BkUpfac"_s);
        QCOMPARE(r, 0);
        QCOMPARE(cajas.vistas.size(), 1);
        QCOMPARE(cajas.vistas[0].titulo, u"Error de base de datos"_s);
    }

    // The models of the kind and company, by name; Enter, the button and Esc
    // take the one shown, the close box 0.
    void impresion_cada_final()
    {
        ejecutarSql(db, u"INSERT INTO disenfacturacab (cod,id,nom,doc) VALUES "
                        "(1,'1','Factura media hoja',0),(2,'1','Factura A4',0),(3,'2','Factura ajena',0),"
                        "(4,'1','Guía A4',10),(5,'1','Retención',5)"_s);
        QStringList lista;
        alAbrir(u"frmImpresion"_s, [&](QWidget* d) {
            QCOMPARE(d->windowTitle(), u"Modelo de impresión"_s);
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            for (int i = 0; i < cmb->count(); ++i)
                lista << cmb->itemText(i);
            QCOMPARE(cmb->currentIndex(), 0);
            cmb->setCurrentIndex(1);
            tecla(cmb, Qt::Key_Return);
            QVERIFY(!d->isVisible());
        });
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, impFactura), 1);
        QCOMPARE(lista, (QStringList{u"Factura A4"_s, u"Factura media hoja"_s}));

        alAbrir(u"frmImpresion"_s, [&](QWidget* d) {
            control<QComboBox>(d, u"Cmb"_s)->setCurrentIndex(1);
            pulsar(d, u"Btn(0)"_s);
        });
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, impFactura), 1);

        alAbrir(u"frmImpresion"_s, [&](QWidget* d) { tecla(control<QComboBox>(d, u"Cmb"_s), Qt::Key_Escape); });
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, impFactura), 2);

        alAbrir(u"frmImpresion"_s, [&](QWidget* d) { d->close(); });
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, impFactura), 0);

        // A kind outside the enumeration counts as the invoice's.
        lista.clear();
        alAbrir(u"frmImpresion"_s, [&](QWidget* d) {
            auto* cmb = control<QComboBox>(d, u"Cmb"_s);
            for (int i = 0; i < cmb->count(); ++i)
                lista << cmb->itemText(i);
            tecla(cmb, Qt::Key_Return);
        });
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, static_cast<TipoDocImpresion>(7)), 2);
        QCOMPARE(lista, (QStringList{u"Factura A4"_s, u"Factura media hoja"_s}));

        // One model alone is not taken by itself: the dialog waits.
        bool esperando = false;
        alAbrir(u"frmImpresion"_s, [&](QWidget* d) {
            QTest::qWait(100);
            esperando = d->isVisible();
            tecla(control<QComboBox>(d, u"Cmb"_s), Qt::Key_Return);
        });
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, impGuia), 4);
        QVERIFY(esperando);
    }

    // Without models the dialog closes by itself and the answer is 0, also
    // after an earlier pick; another company's model is never offered.
    void impresion_sin_modelos()
    {
        ejecutarSql(db, u"INSERT INTO disenfacturacab (cod,id,nom,doc) VALUES (7,'1','Proforma',9),(8,'2','Recibo ajeno',8)"_s);
        alAbrir(u"frmImpresion"_s, [&](QWidget* d) { tecla(control<QComboBox>(d, u"Cmb"_s), Qt::Key_Return); });
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, impProforma), 7);

        VigiaCierre vigia;
        QCOMPARE(nomencla.ElegirModeloImpresion(u"1"_s, db, impRecibo), 0);
        QVERIFY(!vigia.tuvoQueCerrar);
        QCOMPARE(QApplication::activeModalWidget(), nullptr);
    }

    // The header, the lines with their amounts and the totals line.
    void pago_cabecera_lineas_y_totales()
    {
        ejecutarSql(db, u"INSERT INTO tcabfac (cod,estab,pem,num) VALUES (1,'001','002',345),(2,'001','002',346),(3,'002','001',7);\n"
                        "INSERT INTO tCabPagoCli (cod,id,fec,frm,cap,inte) VALUES (10,'1','2024-03-05',3,100.50,0.25),"
                        "(11,'1','2024-01-02',10,5,0),(12,'2','2024-01-03',0,9,0),(13,'1',NULL,0,0,0);\n"
                        "INSERT INTO tCuePagoCli (cab,fac,cap,inte) VALUES (10,1,60.10,0.10),(10,2,40.20,0.20),(12,3,9,0)"_s);
        QStringList etiquetas, facturas, capital, textoTotales;
        alAbrir(u"frmListaFacPaga"_s, [&](QWidget* d) {
            QCOMPARE(d->windowTitle(), u"Lista de facturas canceladas"_s);
            for (int i = 0; i < 3; ++i)
                etiquetas << control<QLabel>(d, u"Label2(%1)"_s.arg(i))->text();
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QVERIFY(gr->totalslineshow());
            facturas = celdas(gr, 0);
            for (int i = 0; i < gr->RowCount(); ++i)
                capital << mostrado(gr, i, 1) + u'|' + mostrado(gr, i, 2) + u'|' + mostrado(gr, i, 3);
            for (int c = 1; c <= 3; ++c)
                textoTotales << gr->ColumnTotalText(c);
            // Nothing can be chosen: a double click leaves it open.
            dobleClic(gr, 0);
            QVERIFY(d->isVisible());
            tecla(gr, Qt::Key_Escape);
            QVERIFY(!d->isVisible());
        });
        nomencla.ListaFacturasCanceladas(u"1"_s, 10, db);
        QCOMPARE(etiquetas, (QStringList{nomencla::localeEcuador().toString(QDate(2024, 3, 5), u"dd-MMM-yyyy"_s),
                                         u"Tarj. crédito"_s, u"100.75"_s}));
        QCOMPARE(facturas, (QStringList{u"001-002-345"_s, u"001-002-346"_s}));
        QCOMPARE(capital, (QStringList{u"60.10|0.10|60.20"_s, u"40.20|0.20|40.40"_s}));
        QCOMPARE(textoTotales, (QStringList{u"100.3"_s, u"0.3"_s, u"100.6"_s}));

        // A code without a text keeps the designed caption; no lines, an empty grid.
        const auto leer = [&](QWidget* d) {
            etiquetas.clear();
            for (int i = 0; i < 3; ++i)
                etiquetas << control<QLabel>(d, u"Label2(%1)"_s.arg(i))->text();
            facturas = celdas(control<Alfarje>(d, u"GR"_s), 0);
        };
        alAbrir(u"frmListaFacPaga"_s, leer);
        nomencla.ListaFacturasCanceladas(u"1"_s, 11, db);
        QCOMPARE(etiquetas[1], u"Label2"_s);
        QCOMPARE(etiquetas[2], u"5.00"_s);
        QVERIFY(facturas.isEmpty());

        // Another company's payment: empty header and none of its lines.
        alAbrir(u"frmListaFacPaga"_s, leer);
        nomencla.ListaFacturasCanceladas(u"1"_s, 12, db);
        QCOMPARE(etiquetas, (QStringList{QString(), QString(), QString()}));
        QVERIFY(facturas.isEmpty());
        alAbrir(u"frmListaFacPaga"_s, leer);
        nomencla.ListaFacturasCanceladas(u"2"_s, 12, db);
        QCOMPARE(facturas, QStringList{u"002-001-7"_s});

        // A payment without date: that label empty, the rest shown.
        alAbrir(u"frmListaFacPaga"_s, leer);
        nomencla.ListaFacturasCanceladas(u"1"_s, 13, db);
        QCOMPARE(etiquetas, (QStringList{QString(), u"Efectivo"_s, u"0.00"_s}));
    }

    // A failing read is shown and the dialog opens with what could be read.
    void pago_con_fallo()
    {
        ejecutarSql(db, u"INSERT INTO tCabPagoCli (cod,id,fec,frm,cap,inte) VALUES (20,'1','2024-05-06',6,10,0);\n"
                        "RENAME TABLE tCuePagoCli TO tCuePagoCliFuera"_s);
        Cajas cajas;
        QString forma;
        alAbrir(u"frmListaFacPaga"_s, [&](QWidget* d) { forma = control<QLabel>(d, u"Label2(1)"_s)->text(); });
        nomencla.ListaFacturasCanceladas(u"1"_s, 20, db);
        QCOMPARE(forma, u"Depósito"_s);
        QCOMPARE(cajas.vistas.size(), 1);
        QCOMPARE(cajas.vistas[0].titulo, u"Error de base de datos"_s);
    }

    // This year's dates, shown in Spanish; the picker moves the selection;
    // add (rate 8, at the end), refuse a listed date, remove after the question.
    void fechas_iva_de_principio_a_fin()
    {
        const int anio = QDate::currentDate().year();
        const QDate enero(anio, 1, 10), marzo(anio, 3, 5), junio(anio, 6, 1);
        ejecutarSql(db, u"INSERT INTO FechaIVAdif (id,fec,iva) VALUES ('1','%1',8),('1','%2',8),('1','%3-12-31',8),"
                        "('2','%1',8)"_s.arg(marzo.toString(Qt::ISODate), enero.toString(Qt::ISODate)).arg(anio - 1));
        Cajas cajas;
        QStringList vistas;
        alAbrir(u"frmListaFechasIVA"_s, [&](QWidget* d) {
            QCOMPARE(d->windowTitle(), u"Fechas para IVA diferenciado"_s);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            auto* dt = control<QDateEdit>(d, u"DT"_s);
            QCOMPARE(dt->date(), QDate(2023, 2, 17));
            QCOMPARE(gr->RowCount(), 2);
            QCOMPARE(mostrado(gr, 0, 0), nomencla::localeEcuador().toString(enero, u"ddd. dd-MMM-yyyy"_s));

            dt->setDate(marzo);
            QCOMPARE(gr->Row(), 1);
            dt->setDate(junio);
            QCOMPARE(gr->Row(), -1);

            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].titulo, u"Listo"_s);
            QCOMPARE(cajas.vistas[0].texto, u"La información se ha guardado correctamente!"_s);
            QCOMPARE(gr->RowCount(), 3);
            QCOMPARE(mostrado(gr, 2, 0), nomencla::localeEcuador().toString(junio, u"ddd. dd-MMM-yyyy"_s));

            // The new row is found like the loaded ones, and not added twice.
            dt->setDate(enero);
            dt->setDate(junio);
            QCOMPARE(gr->Row(), 2);
            pulsar(d, u"Bt(0)"_s);
            QCOMPARE(cajas.vistas.last().titulo, u"AVISO"_s);
            QCOMPARE(cajas.vistas.last().icono, QMessageBox::Warning);
            QCOMPARE(cajas.vistas.last().texto, u"La fecha que intenta guardar ya está registrada en la base de datos!"_s);
            QCOMPARE(gr->RowCount(), 3);

            // No answers No; Yes removes this company's date only.
            gr->setRow(1);
            cajas.responder(QMessageBox::No);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(gr->RowCount(), 3);
            cajas.responder(QMessageBox::Yes);
            pulsar(d, u"Bt(2)"_s);
            const int n = int(cajas.vistas.size());
            QCOMPARE(cajas.vistas[n - 2].titulo, u"CONFIRME"_s);
            QCOMPARE(cajas.vistas[n - 2].texto,
                     u"Está seguro que desea quitar la fecha ''%1'' de la base de datos?"_s.arg(
                         nomencla::localeEcuador().toString(marzo, u"ddd. dd-MMM-yyyy"_s)));
            QCOMPARE(cajas.vistas[n - 1].texto, u"La operación se realizó correctamente!"_s);
            QCOMPARE(gr->RowCount(), 2);

            // Nothing selected: no question, nothing removed.
            gr->setRow(-1);
            pulsar(d, u"Bt(2)"_s);
            QCOMPARE(cajas.vistas.size(), n);
            vistas = celdas(gr, 0);
            d->close();
        });
        nomencla.ListaFechasIVA(u"1"_s, db);
        QVERIFY(M().HuboCambios);
        QVERIFY(!cajas.sinRespuesta);
        QCOMPARE(vistas.size(), 2);
        QCOMPARE(filas(db, u"SELECT id, fec, iva FROM FechaIVAdif ORDER BY id, fec"_s),
                 (QStringList{u"1|%1-12-31|8"_s.arg(anio - 1), u"1|%1|8"_s.arg(enero.toString(Qt::ISODate)),
                              u"1|%1|8"_s.arg(junio.toString(Qt::ISODate)),
                              u"2|%1|8"_s.arg(marzo.toString(Qt::ISODate))}));
    }

    // A date of another year is added and shown, and gone at the next
    // opening; a look only leaves HuboCambios False; a failed insert changes nothing.
    void fechas_iva_otro_anio_y_fallo()
    {
        Cajas cajas;
        alAbrir(u"frmListaFechasIVA"_s, [&](QWidget* d) {
            pulsar(d, u"Bt(0)"_s); // the designed date, 17-feb-2023
            QCOMPARE(control<Alfarje>(d, u"GR"_s)->RowCount(), 1);
        });
        nomencla.ListaFechasIVA(u"1"_s, db);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM FechaIVAdif WHERE id='1' AND fec='2023-02-17'"_s).toInt(), 1);

        QSqlDatabase otra = otraConexion(db, u"otra_fechas"_s);
        int filasAntes = -1, filasDespues = -1;
        alAbrir(u"frmListaFechasIVA"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            filasAntes = gr->RowCount();
            ejecutarSql(otra, u"RENAME TABLE FechaIVAdif TO FechaIVAdifFuera"_s);
            control<QDateEdit>(d, u"DT"_s)->setDate(QDate(QDate::currentDate().year(), 7, 7));
            pulsar(d, u"Bt(0)"_s);
            ejecutarSql(otra, u"RENAME TABLE FechaIVAdifFuera TO FechaIVAdif"_s);
            filasDespues = gr->RowCount();
            QVERIFY(d->isVisible());
        });
        nomencla.ListaFechasIVA(u"1"_s, db);
        QCOMPARE(filasAntes, 0);
        QCOMPARE(filasDespues, 0);
        QVERIFY(!M().HuboCambios);
        QCOMPARE(cajas.vistas.last().titulo, u"Error de base de datos"_s);
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM FechaIVAdif"_s).toInt(), 1);
    }
};

QTEST_MAIN(PruebaSelectores)
#include "prueba_selectores.moc"
