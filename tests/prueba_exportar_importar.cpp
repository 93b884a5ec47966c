// What the library adds to the dialogs, driven as a clerk would: copying and
// exporting a grid, importing a CSV file into the lists through the preview,
// and the RUC hint of the sub-suppliers.
#include "tests/prueba_estructura.h"

#include "core/Controles.h"
#include "core/ExportarGrilla.h"

#include <nomencla/clsNomencla.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QElapsedTimer>
#include <QFileDialog>
#include <QLabel>
#include <QMenu>
#include <QTemporaryDir>

using namespace Qt::StringLiterals;
using namespace prueba;
using nomencla::Alfarje;

namespace {

void escribirArchivo(const QString& ruta, const QByteArray& bytes)
{
    QFile f(ruta);
    QVERIFY(f.open(QIODevice::WriteOnly) && f.write(bytes) == bytes.size());
}

QByteArray leerArchivo(const QString& ruta)
{
    QFile f(ruta);
    return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
}

void disparar(QWidget* d, const QString& accion)
{
    auto* a = d->findChild<QAction*>(accion);
    QVERIFY2(a, qPrintable(accion));
    a->trigger();
}

// Imports `archivo` from the dialog `d`: `enVista` runs in the preview.
void importarArchivo(QWidget* d, const QString& archivo, std::function<void(QWidget*)> enVista)
{
    nomencla::setElectorArchivo([archivo](QWidget*, const QString&, const QString&) { return archivo; });
    if (enVista)
        alAbrir(u"frmImportar"_s, std::move(enVista));
    disparar(d, u"ImportarCSV"_s);
    nomencla::setElectorArchivo({});
}

const QString kAgrega = u"Se agrega"_s;
const QString kExiste = u"Se omite: ya está en la lista"_s;

// One member of each family, each file in another encoding and separator.
struct Importacion {
    QString nombre, forma;
    Metodo metodo;
    QString preparar;
    QByteArray archivo;
    QStringList veredictos;
    QString consulta;   // the rows written, this tenant only, keys as a save gives them
    QStringList esperadas;
};

QByteArray utf16(const QString& t)
{
    return QByteArray("\xFF\xFE") + QByteArray(reinterpret_cast<const char*>(t.utf16()), t.size() * 2);
}

const QList<Importacion> importaciones{
    {u"ciudades, UTF-8 con BOM, punto y coma"_s, u"frmLsCiudad"_s, &clsNomencla::Ciudades,
     u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Cuenca'),('2','Loja')"_s,
     "\xEF\xBB\xBF" "Ciudad\r\nCUENCA\r\nLoja\r\n\r\nloja \r\n" + QByteArray(26, 'x') + "\r\n\"Machala\"",
     {kExiste, kAgrega, u"Se omite: repetida en el archivo (línea 3)"_s, u"Rechazada: más de 25 caracteres"_s, kAgrega},
     u"SELECT ciu FROM lsCiudades WHERE id='1' ORDER BY ciu"_s, {u"Cuenca"_s, u"Loja"_s, u"Machala"_s}},
    {u"medidas, Windows-1252, coma"_s, u"frmMedidas"_s, &clsNomencla::Medidas, {},
     "Metro c\xFA" "bico,m\xB3\r\nKilogramo,kg\r\n,u\r\nUnidad,\r\nKILOGRAMO,KG\r\n",
     {kAgrega, kAgrega, u"Rechazada: MEDIDA: vacío"_s, u"Rechazada: ABREV.: vacío"_s,
      u"Se omite: repetida en el archivo (línea 2)"_s},
     u"SELECT med,abr FROM aMedidas WHERE id='1' ORDER BY med"_s, {u"Kilogramo|kg"_s, u"Metro cúbico|m³"_s}},
    {u"categorías, tabulador, claves del inquilino"_s, u"frmLsCategorias"_s, &clsNomencla::CategoriaClientes,
     u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',1,'Mayorista','',1),('2',7,'Otro','',1)"_s,
     "Categoría\tDescripción\nMinorista\t\"Venta al\npor menor\"\nA\tuna letra\nmayorista\tya está\nDistribuidor\n",
     {kAgrega, u"Rechazada: CATEGORIA: menos de 2 caracteres"_s, kExiste, kAgrega},
     u"SELECT id,cod,cat,des FROM mCatClie ORDER BY id,cod"_s,
     {u"1|1|Mayorista|"_s, u"1|2|Minorista|Venta al por menor"_s, u"1|3|Distribuidor|"_s, u"2|7|Otro|"_s}},
    {u"países, UTF-8 sin BOM, largo mínimo"_s, u"frmLsPaises"_s, &clsNomencla::Paises,
     u"INSERT INTO lsPaises (id,nom) VALUES ('1','Ecuador')"_s, "Perú\nColombia\nEcuador\n",
     {u"Rechazada: menos de 6 caracteres"_s, kAgrega, kExiste}, u"SELECT nom FROM lsPaises WHERE id='1' ORDER BY nom"_s,
     {u"Colombia"_s, u"Ecuador"_s}},
    {u"departamentos, UTF-16 con BOM"_s, u"frmLsDepartam"_s, &clsNomencla::Departamentos, {},
     utf16(u"Ventas\r\nBodega de Quito\r\n"_s), {kAgrega, kAgrega},
     u"SELECT depa FROM lsDepartam WHERE id='1' ORDER BY depa"_s, {u"Bodega de Quito"_s, u"Ventas"_s}},
};

} // namespace

class PruebaExportarImportar : public QObject {
    Q_OBJECT
    QSqlDatabase db;
    clsNomencla nomencla;
    QTemporaryDir carpeta;

private Q_SLOTS:
    void init() { db = baseNueva(u"t_exportar_importar"_s); }

    // Ctrl+C with no row selected copies all, with one row that row; the CSV
    // file has the byte-order mark, ';', quotes where needed and the visible
    // columns only, in the grid's order. A failed write is told and leaves no
    // file. Nothing of this changes the method's answer.
    void copiar_y_exportar()
    {
        ejecutarSql(db, u"INSERT INTO lsCiudades (id,ciu) VALUES ('1','Quito'),('1','Loja; Sur'),('1','Ma\"ra'),"
                        "('2','Otra');\n"
                        "INSERT INTO mCatClie (id,cod,cat,des,est) VALUES ('1',1,'Mayorista','Al por mayor',1)"_s);
        Cajas cajas;
        const QString destino = carpeta.filePath(u"ciudades.csv"_s);
        QString elegido = destino;
        nomencla::exportar::setElectorGuardar([&](QWidget*, const QString&, const QString&) { return elegido; });
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QStringList enMenu; // the right click offers them
            QTimer::singleShot(50, [&] {
                if (auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget())) {
                    for (QAction* a : menu->actions())
                        enMenu.append(a->objectName());
                    menu->close();
                }
            });
            QContextMenuEvent clic(QContextMenuEvent::Mouse, QPoint(20, 10), gr->viewport()->mapToGlobal(QPoint(20, 10)));
            QApplication::sendEvent(gr->viewport(), &clic);
            QCOMPARE(enMenu, (QStringList{u"Copiar"_s, u"ExportarCSV"_s, u"ImportarCSV"_s}));
            gr->setFocus();
            QTest::keyClick(gr, Qt::Key_C, Qt::ControlModifier);
            QCOMPARE(QApplication::clipboard()->text(), u"C I U D A D\nLoja; Sur\n\"Ma\"\"ra\"\nQuito\n"_s);
            gr->setRow(2);
            QKeyEvent copiar(QEvent::KeyPress, Qt::Key_C, Qt::ControlModifier, u"\x03"_s);
            QApplication::sendEvent(gr, &copiar); // also without the shortcut machinery
            QCOMPARE(QApplication::clipboard()->text(), u"C I U D A D\nQuito\n"_s);

            disparar(d, u"ExportarCSV"_s);
            QCOMPARE(leerArchivo(destino), "\xEF\xBB\xBF" "C I U D A D\r\n\"Loja; Sur\"\r\n\"Ma\"\"ra\"\r\nQuito\r\n");
            elegido = carpeta.filePath(u"no/existe/ciudades.csv"_s);
            disparar(d, u"ExportarCSV"_s);
            QCOMPARE(cajas.vistas.size(), 1);
            QCOMPARE(cajas.vistas[0].icono, QMessageBox::Critical);
            QVERIFY(cajas.ultima().contains(QDir::toNativeSeparators(elegido)));
            QCOMPARE(QDir(carpeta.path()).entryList(QDir::Files), QStringList{u"ciudades.csv"_s});

            // Without a chooser of the test's, a real file dialog asks, the caption as the name.
            nomencla::exportar::setElectorGuardar({});
            const QString real = carpeta.filePath(u"real.csv"_s);
            QString propuesto;
            QTimer::singleShot(0, [&] {
                auto* fd = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
                QVERIFY(fd);
                propuesto = fd->selectedFiles().value(0);
                fd->selectFile(real);
                QMetaObject::invokeMethod(fd, "accept");
            });
            disparar(d, u"ExportarCSV"_s);
            QCOMPARE(QFileInfo(propuesto).fileName(), u"Lista de ciudades.csv"_s);
            QCOMPARE(leerArchivo(real), leerArchivo(destino));
        });
        QVERIFY(!nomencla.Ciudades(u"1"_s, db));
        nomencla::exportar::setElectorGuardar([&](QWidget*, const QString&, const QString&) { return elegido; });

        // A coded list: the hidden key stays out. A list without imports still copies.
        elegido = destino;
        alAbrir(u"frmLsCategorias"_s, [&](QWidget* d) { disparar(d, u"ExportarCSV"_s); });
        QVERIFY(!nomencla.CategoriaClientes(u"1"_s, db));
        QCOMPARE(leerArchivo(destino), "\xEF\xBB\xBF" "CATEGORIA;DESCRIPCION DE LA CATEGORÍA\r\nMayorista;Al por mayor\r\n");
        alAbrir(u"frmLsTipoCli"_s, [&](QWidget* d) {
            QVERIFY(d->findChild<QAction*>(u"Copiar"_s) && !d->findChild<QAction*>(u"ImportarCSV"_s));
        });
        QVERIFY(!nomencla.TipoClientes(u"1"_s, db));
        nomencla::exportar::setElectorGuardar({});
    }

    // The preview's verdicts, the rows written and the method's answer.
    void importar_data() { porCaso(importaciones, [](const Importacion& c) { return c.nombre; }); }
    void importar()
    {
        QFETCH(int, i);
        const auto& [nombre, forma, metodo, preparar, archivo, veredictos, consulta, esperadas] = importaciones[i];
        if (!preparar.isEmpty())
            ejecutarSql(db, preparar);
        const QString ruta = carpeta.filePath(u"lista.csv"_s);
        escribirArchivo(ruta, archivo);
        Cajas cajas;
        int filasAntes = -1, filasDespues = -1;
        alAbrir(forma, [&](QWidget* d) {
            auto* gr = control<Alfarje>(d, u"GR"_s);
            filasAntes = gr->RowCount();
            importarArchivo(d, ruta, [&](QWidget* vista) {
                auto* lista = control<Alfarje>(vista, u"GR"_s);
                QStringList vistos; // the verdicts, in the last column
                for (int f = 0; f < lista->RowCount(); ++f)
                    vistos << lista->CellText(f, lista->model()->columnCount() - 1);
                QCOMPARE(vistos, veredictos);
                QVERIFY(cajas.vistas.isEmpty());
                pulsar(vista, u"Bt(0)"_s);
            });
            filasDespues = gr->RowCount();
        });
        QVERIFY((nomencla.*metodo)(u"1"_s, db));
        QCOMPARE(filas(db, consulta), esperadas);
        QCOMPARE(filasDespues - filasAntes, int(veredictos.count(kAgrega)));
        QCOMPARE(cajas.vistas.size(), 1);
        QCOMPARE(cajas.ultima(), u"Se importaron %1 filas a la lista."_s.arg(veredictos.count(kAgrega)));
    }

    // Cancelled in the preview, unreadable, not text, columns that do not
    // fit, a database failure halfway: nothing is written and the method
    // answers that nothing changed.
    void nada_se_escribe()
    {
        ejecutarSql(db, u"CREATE TRIGGER falla BEFORE INSERT ON lsCiudades FOR EACH ROW "
                        "BEGIN IF NEW.ciu = 'Beta' THEN SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'falla'; END IF; END"_s);
        const QString ruta = carpeta.filePath(u"lista.csv"_s);
        struct Caso { QByteArray archivo; bool vista; QString mensaje; };
        const QList<Caso> casos{
            {"Alfa\nGamma\n", true, QString()}, // cancelled
            {QByteArray(), false, u"no tiene filas"_s},
            {QByteArray("PNG\0\0\1", 6), false, u"no es un archivo de texto"_s},
            {"Alfa;Beta;Gamma\n", false, u"la línea 1 tiene 3 columnas"_s},
            {"Alfa\nBeta\n", true, u"falla"_s},
        };
        for (const Caso& c : casos) {
            escribirArchivo(ruta, c.archivo);
            Cajas cajas;
            alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
                importarArchivo(d, ruta, c.vista ? [&](QWidget* v) { pulsar(v, c.mensaje.isEmpty() ? u"Bt(1)"_s : u"Bt(0)"_s); }
                                                 : std::function<void(QWidget*)>());
            });
            QVERIFY(!nomencla.Ciudades(u"1"_s, db));
            QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsCiudades"_s).toInt(), 0);
            QCOMPARE(cajas.vistas.size(), c.mensaje.isEmpty() ? 0 : 1);
            if (!c.mensaje.isEmpty())
                QVERIFY2(cajas.ultima().contains(c.mensaje), qPrintable(cajas.ultima()));
        }
        Cajas cajas;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) { importarArchivo(d, carpeta.filePath(u"no-existe.csv"_s), {}); });
        QVERIFY(!nomencla.Ciudades(u"1"_s, db));
        QVERIFY(cajas.ultima().startsWith(u"No se pudo leer el archivo"_s));
    }

    // 10,000 rows in one go, timed: the preview (read and judged) and the write.
    void diez_mil_filas()
    {
        QByteArray archivo = "CIUDAD\n";
        for (int i = 0; i < 10000; ++i)
            archivo += "Ciudad " + QByteArray::number(i).rightJustified(5, '0') + '\n';
        const QString ruta = carpeta.filePath(u"diez_mil.csv"_s);
        escribirArchivo(ruta, archivo);
        Cajas cajas;
        QElapsedTimer reloj;
        qint64 vista = 0, escritura = 0;
        alAbrir(u"frmLsCiudad"_s, [&](QWidget* d) {
            reloj.start();
            importarArchivo(d, ruta, [&](QWidget* v) {
                vista = reloj.restart();
                QCOMPARE(control<Alfarje>(v, u"GR"_s)->RowCount(), 10000);
                pulsar(v, u"Bt(0)"_s);
            });
            escritura = reloj.elapsed();
            QCOMPARE(control<Alfarje>(d, u"GR"_s)->RowCount(), 10000);
        });
        QVERIFY(nomencla.Ciudades(u"1"_s, db));
        QCOMPARE(valor(db, u"SELECT COUNT(*) FROM lsCiudades WHERE id='1'"_s).toInt(), 10000);
        qInfo("import of 10000 rows: preview %lld ms, write and reload %lld ms", vista, escritura);
        QVERIFY(vista + escritura < 10000);
    }

    // The warning beside the RUC: shown for a record and when the clerk leaves
    // the box, gone once corrected, never for a foreign number; the save runs
    // as always.
    void ruc_de_subproveedores()
    {
        ejecutarSql(db, u"INSERT INTO mProveedor (cod,nom,ced) VALUES (1,'Proveedor Uno','0990000000001');\n"
                        "INSERT INTO SubProveedor (cod,id,prov,cin,ruc,raz,est) VALUES "
                        "(1,'1',1,'A-01','1710034064','Mala',1),(2,'1',1,'B-02','A1234567','Extranjera',1)"_s);
        Cajas cajas;
        alAbrir(u"frmSubProveedor"_s, [&](QWidget* d) {
            auto* aviso = control<QLabel>(d, u"LblRuc"_s);
            auto* gr = control<Alfarje>(d, u"GR"_s);
            QVERIFY(aviso->isHidden());
            dobleClic(gr, filaCon(gr, u"A-01"_s));
            QVERIFY(!aviso->isHidden());
            QVERIFY(aviso->toolTip().contains(u"verificador"_s)); // the reason
            auto* ruc = tx(d, 1);
            ruc->setFocus();
            ruc->end(false);
            tecla(ruc, Qt::Key_Backspace);
            teclear(ruc, u"5"_s);
            QVERIFY(aviso->isHidden()); // corrected
            tecla(ruc, Qt::Key_Backspace);
            teclear(ruc, u"6"_s);
            QVERIFY(aviso->isHidden()); // typing alone does not show it
            Q_EMIT ruc->editingFinished(); // the clerk leaves the box
            QVERIFY(!aviso->isHidden());
            pulsar(d, u"Bt(0)"_s);
            for (const Caja& c : cajas.vistas)
                QVERIFY2(!c.texto.contains(u"RUC"_s), qPrintable(c.texto));
            dobleClic(gr, filaCon(gr, u"B-02"_s));
            QVERIFY(aviso->isHidden());
        });
        QVERIFY(nomencla.SubProveedores(u"1"_s, 1, db));
        QCOMPARE(valor(db, u"SELECT ruc FROM SubProveedor WHERE cod=1"_s).toString(), u"1710034066"_s);
    }
};

QTEST_MAIN(PruebaExportarImportar)
#include "prueba_exportar_importar.moc"
