// nomencla-demo: a small host for the Nomencla dialogs.
//
// It opens the main database (MariaDB/MySQL) and the store of pending
// documents (SQLite, loaded from an SQL file), and offers one button per
// method of clsNomencla. With --screenshots DIR it opens every dialog in
// turn, saves a picture of each one and exits.
#include <nomencla/clsNomencla.h>

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QPointer>
#include <QCommandLineParser>
#include <QComboBox>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMainWindow>
#include <QMenu>
#include <QMessageBox>
#include <QPainter>
#include <QPixmap>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QScrollArea>
#include <QSet>
#include <QSpinBox>
#include <QSplitter>
#include <QSqlDatabase>
#include <QSqlError>
#include <QSqlQuery>
#include <QStringList>
#include <QTemporaryDir>
#include <QTextStream>
#include <QTimer>
#include <QVBoxLayout>

#include <cstdio>
#include <functional>
#include <vector>

using namespace Qt::StringLiterals;

namespace {

struct Opciones {
    QString socket;
    QString host;
    int puerto = 0;
    QString usuario = u"root"_s;
    QString clave;
    QString baseDatos;
    QString pendientes;
    QString capturas;
};

QString texto(bool valor) { return valor ? u"True"_s : u"False"_s; }

QString fecha(const QDate& d) { return d.isValid() ? d.toString(u"dd-MM-yyyy"_s) : u"(sin fecha)"_s; }

// Runs the statements of an SQL file, one per ";" at the end of a line;
// lines that start with "--" are comments.
bool cargarScript(QSqlDatabase& db, const QString& ruta, QString& error)
{
    QFile archivo(ruta);
    if (!archivo.open(QIODevice::ReadOnly | QIODevice::Text)) {
        error = u"No se pudo abrir "_s + ruta + u": "_s + archivo.errorString();
        return false;
    }
    QTextStream entrada(&archivo);
    QString sentencia;
    while (!entrada.atEnd()) {
        const QString linea = entrada.readLine();
        const QString limpia = linea.trimmed();
        if (limpia.startsWith(u"--"_s) || (sentencia.isEmpty() && limpia.isEmpty()))
            continue;
        sentencia += linea + u'\n';
        if (limpia.endsWith(u';')) {
            QSqlQuery q(db);
            if (!q.exec(sentencia)) {
                error = ruta + u": "_s + q.lastError().text();
                return false;
            }
            sentencia.clear();
        }
    }
    return true;
}

class VentanaDemo : public QMainWindow {
public:
    VentanaDemo(QSqlDatabase principal, QSqlDatabase pendientes, const QString& descripcion)
        : m_conexion(std::move(principal)), m_conexionAcces(std::move(pendientes))
    {
        setWindowTitle(u"Nomencla — demostración"_s);
        setObjectName(u"ventanaDemo"_s);

        auto* central = new QWidget(this);
        auto* raiz = new QVBoxLayout(central);

        auto* cabecera = new QGroupBox(u"Conexión y empresa"_s, central);
        auto* formulario = new QFormLayout(cabecera);
        formulario->addRow(u"Base de datos:"_s, new QLabel(descripcion, cabecera));
        m_empresa = new QComboBox(cabecera);
        m_empresa->setEditable(true);
        m_empresa->addItems({u"1"_s, u"2"_s});
        m_empresa->setObjectName(u"IdEmp"_s);
        formulario->addRow(u"&Empresa (IdEmp):"_s, m_empresa);
        m_nombreEmpresa = new QLineEdit(u"Distribuidora Andina del Ecuador S.A."_s, cabecera);
        formulario->addRow(u"&Nombre de la empresa:"_s, m_nombreEmpresa);
        auto* agregados = new QLabel(
            u"Clic derecho sobre cualquier lista: «Copiar» (también Ctrl+C) y «Exportar a CSV…»; en las listas que "
            "una empresa llena al empezar, «Importar desde CSV…» (exporte una lista y vuelva a importarla en la otra "
            "empresa). En SubProveedores, un RUC o cédula que no puede ser correcto se señala junto a la caja."_s,
            cabecera);
        agregados->setWordWrap(true);
        formulario->addRow(u"Agregados:"_s, agregados);
        raiz->addWidget(cabecera);

        auto* division = new QSplitter(Qt::Horizontal, central);
        auto* desplazable = new QScrollArea(division);
        desplazable->setWidgetResizable(true);
        auto* panel = new QWidget(desplazable);
        m_rejilla = new QGridLayout(panel);
        construirMetodos(panel);
        m_rejilla->setRowStretch(kFilas, 1);
        m_rejilla->setColumnStretch(1, 1);
        m_rejilla->setColumnStretch(3, 1);
        desplazable->setWidget(panel);

        m_resultado = new QPlainTextEdit(division);
        m_resultado->setReadOnly(true);
        m_resultado->setObjectName(u"resultado"_s);
        m_resultado->setPlaceholderText(u"Aquí aparece lo que devuelve cada método."_s);
        division->addWidget(desplazable);
        division->addWidget(m_resultado);
        division->setStretchFactor(0, 3);
        division->setStretchFactor(1, 2);
        raiz->addWidget(division, 1);

        setCentralWidget(central);
        resize(1280, 720);
    }

    struct Metodo {
        QString nombre;
        std::function<QString()> llamar;
    };

    const std::vector<Metodo>& metodos() const { return m_metodos; }

    void anotar(const QString& linea) { m_resultado->appendPlainText(linea); }

    // Calls a method and writes what it returned in the result area.
    QString ejecutar(const Metodo& metodo)
    {
        const QString resultado = metodo.llamar();
        anotar(metodo.nombre + u"(IdEmp='"_s + idEmp() + u"') → "_s + resultado);
        return resultado;
    }

private:
    static constexpr int kFilas = 13;

    QString idEmp() const { return m_empresa->currentText().trimmed(); }

    QSpinBox* numero(QWidget* padre, int minimo, int maximo, int valor, const QString& prefijo)
    {
        auto* caja = new QSpinBox(padre);
        caja->setRange(minimo, maximo);
        caja->setValue(valor);
        caja->setPrefix(prefijo);
        return caja;
    }

    void agregar(QWidget* padre, const QString& nombre, std::function<QString()> llamar,
                 const QList<QWidget*>& entradas = {})
    {
        // Two columns of methods, each a button and its arguments.
        const int posicion = int(m_metodos.size());
        const int fila = posicion % kFilas;
        const int columna = (posicion / kFilas) * 2;
        auto* boton = new QPushButton(nombre, padre);
        boton->setObjectName(nombre);
        m_rejilla->addWidget(boton, fila, columna);
        auto* extras = new QHBoxLayout;
        for (QWidget* w : entradas)
            extras->addWidget(w);
        extras->addStretch(1);
        m_rejilla->addLayout(extras, fila, columna + 1);
        m_metodos.push_back({nombre, llamar});
        const std::size_t indice = m_metodos.size() - 1;
        QObject::connect(boton, &QPushButton::clicked, this, [this, indice] { ejecutar(m_metodos[indice]); });
    }

    void construirMetodos(QWidget* p)
    {
        auto booleano = [this](bool (clsNomencla::*m)(const QString&, QSqlDatabase&)) {
            return [this, m]() -> QString { return texto((m_nomencla.*m)(idEmp(), m_conexion)); };
        };

        agregar(p, u"Contenidos"_s, booleano(&clsNomencla::Contenidos));
        agregar(p, u"Ciudades"_s, booleano(&clsNomencla::Ciudades));
        agregar(p, u"Bancos"_s, booleano(&clsNomencla::Bancos));
        agregar(p, u"CategoriaClientes"_s, booleano(&clsNomencla::CategoriaClientes));
        agregar(p, u"ZonaClientes"_s, booleano(&clsNomencla::ZonaClientes));
        agregar(p, u"TipoClientes"_s, booleano(&clsNomencla::TipoClientes));
        agregar(p, u"DocumentAutorizSRI"_s, booleano(&clsNomencla::DocumentAutorizSRI));
        agregar(p, u"SustentoTributario"_s, booleano(&clsNomencla::SustentoTributario));
        agregar(p, u"Contratos"_s, booleano(&clsNomencla::Contratos));
        agregar(p, u"Cuentas"_s, booleano(&clsNomencla::Cuentas));
        agregar(p, u"Empresas"_s, booleano(&clsNomencla::Empresas));
        agregar(p, u"Sucursales"_s, booleano(&clsNomencla::Sucursales));

        auto* proveedor = numero(p, 0, 999999, 1, u"Proveedor: "_s);
        agregar(
            p, u"SubProveedores"_s,
            [this, proveedor]() -> QString {
                return texto(m_nomencla.SubProveedores(QVariant(idEmp()), proveedor->value(), m_conexion));
            },
            {proveedor});

        agregar(p, u"Cargos"_s, booleano(&clsNomencla::Cargos));
        agregar(p, u"Departamentos"_s, booleano(&clsNomencla::Departamentos));
        agregar(p, u"FacturasPendientes"_s, [this]() -> QString {
            return QString::number(
                m_nomencla.FacturasPendientes(idEmp(), m_nombreEmpresa->text(), m_conexion, m_conexionAcces));
        });

        auto* tipoDoc = new QComboBox(p);
        const std::pair<int, QString> tipos[] = {
            {impFactura, u"0 Factura"_s},           {impEntregaFacturar, u"3 Entrega por facturar"_s},
            {impNotaEntrega, u"4 Nota de entrega"_s}, {impRetencion, u"5 Retención"_s},
            {impNotaCredito, u"6 Nota de crédito"_s}, {impRecibo, u"8 Recibo"_s},
            {impProforma, u"9 Proforma"_s},         {impGuia, u"10 Guía de remisión"_s},
            {7, u"7 (fuera de la lista)"_s},
        };
        for (const auto& [valor, etiqueta] : tipos)
            tipoDoc->addItem(etiqueta, valor);
        agregar(
            p, u"ElegirModeloImpresion"_s,
            [this, tipoDoc]() -> QString {
                const auto tipo = static_cast<TipoDocImpresion>(tipoDoc->currentData().toInt());
                return QString::number(m_nomencla.ElegirModeloImpresion(idEmp(), m_conexion, tipo));
            },
            {tipoDoc});

        agregar(p, u"Paises"_s, booleano(&clsNomencla::Paises));
        agregar(p, u"Medidas"_s, booleano(&clsNomencla::Medidas));
        agregar(p, u"AgregarLoteCaducidad"_s, [this]() -> QString {
            InfoLotes lote;
            const bool ok = m_nomencla.AgregarLoteCaducidad(idEmp(), m_conexion, lote);
            return texto(ok) + u"\n    Lote: "_s + lote.Lote + u"\n    FechaCaducidad: "_s +
                   fecha(lote.FechaCaducidad) + u"\n    Cantidad: "_s + QString::number(lote.Cantidad) +
                   u"\n    RegistroSanitario: "_s + lote.RegistroSanitario + u"\n    FechaFabricacion: "_s +
                   fecha(lote.FechaFabricacion) + u"\n    PaisOrigen: "_s + lote.PaisOrigen;
        });

        auto* articulo = numero(p, 0, 999999, 1, u"Artículo: "_s);
        auto* bodega = numero(p, -1, 999, -1, u"Bodega: "_s);
        bodega->setSpecialValueText(u"Bodega: todas"_s);
        auto* clase = new QComboBox(p);
        const std::pair<int, QString> clases[] = {
            {lsLotesTodos, u"10 Todos"_s},          {lsLotesValidos, u"11 Válidos"_s},
            {lsLotesCaducados, u"0 Caducados"_s},   {lsLotesActivos, u"1 Activos"_s},
            {lsLotesCuarentena, u"2 Cuarentena"_s}, {lsLotesEnRevision, u"3 En revisión"_s},
        };
        for (const auto& [valor, etiqueta] : clases)
            clase->addItem(etiqueta, valor);
        agregar(
            p, u"SeleccionarLote"_s,
            [this, articulo, bodega, clase]() -> QString {
                const auto tipo = static_cast<tipoLoteLS>(clase->currentData().toInt());
                return QString::number(
                    m_nomencla.SeleccionarLote(idEmp(), m_conexion, articulo->value(), bodega->value(), tipo));
            },
            {articulo, bodega, clase});

        agregar(p, u"FacturasPendientesVentas"_s, [this]() -> QString {
            return QString::number(
                m_nomencla.FacturasPendientesVentas(m_nombreEmpresa->text(), m_conexion, m_conexionAcces));
        });

        auto* pago = numero(p, 0, 999999, 4, u"Pago: "_s);
        agregar(
            p, u"ListaFacturasCanceladas"_s,
            [this, pago]() -> QString {
                m_nomencla.ListaFacturasCanceladas(idEmp(), pago->value(), m_conexion);
                return u"(sin valor de retorno)"_s;
            },
            {pago});
        agregar(p, u"ListaFechasIVA"_s, [this]() -> QString {
            m_nomencla.ListaFechasIVA(idEmp(), m_conexion);
            return u"(sin valor de retorno)"_s;
        });
        agregar(p, u"ConfirmaUsuario"_s, [this]() -> QString { return texto(m_nomencla.ConfirmaUsuario(idEmp(), m_conexion)); });
    }

    clsNomencla m_nomencla;
    QSqlDatabase m_conexion;
    QSqlDatabase m_conexionAcces;
    QComboBox* m_empresa = nullptr;
    QLineEdit* m_nombreEmpresa = nullptr;
    QGridLayout* m_rejilla = nullptr;
    QPlainTextEdit* m_resultado = nullptr;
    std::vector<Metodo> m_metodos;
};

// Opens every dialog in turn, saves a picture of it and closes it.
class Capturador : public QObject {
public:
    Capturador(VentanaDemo& ventana, QString carpeta) : m_ventana(ventana), m_carpeta(std::move(carpeta)) {}

    void iniciar()
    {
        QTimer::singleShot(0, this, [this] { ejecutar(0); });
    }

private:
    static constexpr int kPaso = 50;         // ms between two looks for the dialog
    static constexpr int kEspera = 2000;     // ms to wait for a dialog to appear
    static constexpr int kAsentarse = 200;   // ms of events before the picture

    void ejecutar(std::size_t i)
    {
        const auto& metodos = m_ventana.metodos();
        if (i >= metodos.size()) {
            // The main window last, with what every call returned.
            guardar(m_ventana.grab(), u"ventana-principal"_s);
            std::fprintf(stdout, "%d capturas en %s\n", int(m_escritos.size()), qPrintable(m_carpeta));
            for (const QString& f : std::as_const(m_escritos))
                std::fprintf(stdout, "%s\n", qPrintable(f));
            std::fflush(stdout);
            QApplication::exit(0);
            return;
        }
        const int ronda = ++m_ronda;
        m_actual = metodos[i].nombre;
        m_enCurso = true;
        vigilar(ronda, 0);
        m_ventana.ejecutar(metodos[i]); // returns when the dialog has closed
        m_enCurso = false;
        QTimer::singleShot(0, this, [this, i] { ejecutar(i + 1); });
    }

    bool vigente(int ronda) const { return m_enCurso && ronda == m_ronda; }

    void vigilar(int ronda, int esperado)
    {
        QTimer::singleShot(kPaso, this, [this, ronda, esperado] {
            if (!vigente(ronda))
                return;
            if (QApplication::activeModalWidget() != nullptr) {
                QTimer::singleShot(kAsentarse, this, [this, ronda] { capturar(ronda); });
                return;
            }
            if (esperado + kPaso >= kEspera) {
                std::fprintf(stderr, "%s: no apareció ningún diálogo, se omite\n", qPrintable(m_actual));
                cerrarSueltas();
                cerrar(ronda);
                return;
            }
            vigilar(ronda, esperado + kPaso);
        });
    }

    void capturar(int ronda)
    {
        if (!vigente(ronda))
            return;
        QWidget* dialogo = QApplication::activeModalWidget();
        if (dialogo == nullptr)
            return vigilar(ronda, 0);
        QString nombre = dialogo->objectName();
        if (nombre.isEmpty() || m_nombres.contains(nombre))
            nombre = m_actual;
        guardar(dialogo->grab(), nombre);
        estadosExtra(ronda, dialogo, nombre, 0);
    }

    // Further pictures of some dialogs: a row picked, another layout.
    void estadosExtra(int ronda, QWidget* dialogo, const QString& nombre, int paso)
    {
        if (!vigente(ronda))
            return;
        QPointer<QWidget> d(dialogo);
        auto despues = [this, ronda, d, nombre, paso](const QString& sufijo) {
            QTimer::singleShot(kAsentarse, this, [this, ronda, d, nombre, paso, sufijo] {
                if (!vigente(ronda) || !d)
                    return;
                guardar(d->grab(), nombre + sufijo);
                estadosExtra(ronda, d, nombre, paso + 1);
            });
        };
        // The grid of a dialog: pick a row as a double click would.
        auto elegirFila = [d](int fila) {
            QObject* gr = d->findChild<QObject*>(u"GR"_s);
            if (!gr || gr->property("RowCount").toInt() <= fila)
                return false;
            gr->setProperty("Row", fila);
            return QMetaObject::invokeMethod(gr, "Click");
        };
        if (paso == 0 && (nombre == u"frmLsZona"_s || nombre == u"frmEmpresas"_s || nombre == u"frmLsTipoCli"_s
                          || nombre == u"frmSucursales"_s || nombre == u"frmLsCategorias"_s)) {
            if (elegirFila(0))
                return despues(u"-elegido"_s);
        }
        // A natural person's RUC whose first ten digits are no cédula: the hint beside the box.
        if (paso == 0 && nombre == u"frmSubProveedor"_s) {
            if (elegirFila(1))
                return despues(u"-ruc"_s);
        }
        // The grid's menu, then an import through its preview.
        if (paso == 0 && nombre == u"frmLsCiudad"_s) {
            menuDeLaGrilla(d, nombre);
            return estadosExtra(ronda, d, nombre, 1);
        }
        if (paso == 1 && nombre == u"frmLsCiudad"_s)
            return importarEjemplo(ronda, d, [despues] { despues(u"-importado"_s); });
        if (paso == 0 && nombre == u"frmLsBancos"_s) {
            if (auto* casilla = d->findChild<QAbstractButton*>(u"Check1"_s)) {
                casilla->click();
                return despues(u"-tarjetas"_s);
            }
        }
        cerrar(ronda);
    }

    // The dialog with its grid's context menu open over the rows.
    void menuDeLaGrilla(QWidget* d, const QString& nombre)
    {
        auto* gr = d->findChild<QAbstractItemView*>(u"GR"_s);
        if (!gr)
            return;
        gr->setCurrentIndex(gr->model()->index(0, 0));
        QMenu menu;
        menu.addActions(gr->actions());
        menu.adjustSize();
        QPixmap imagen = d->grab();
        QPainter pintor(&imagen);
        pintor.drawPixmap(gr->mapTo(d, QPoint(gr->width() / 3, gr->viewport()->y() + 12)), menu.grab());
        pintor.end();
        guardar(imagen, nombre + u"-menu"_s);
    }

    // Waits for the modal widget that `buscar` accepts, then runs `hacer` on it.
    void esperar(int ronda, std::function<QWidget*(QWidget*)> buscar, std::function<void(QWidget*)> hacer,
                 int esperado = 0)
    {
        QTimer::singleShot(kPaso, this, [=, this] {
            if (!vigente(ronda))
                return;
            if (QWidget* w = buscar(QApplication::activeModalWidget())) {
                QPointer<QWidget> p(w);
                QTimer::singleShot(kAsentarse, this, [=, this] {
                    if (vigente(ronda) && p)
                        hacer(p);
                });
                return;
            }
            if (esperado + kPaso >= kEspera) {
                QWidget* arriba = QApplication::activeModalWidget();
                std::fprintf(stderr, "%s: la importación de ejemplo no avanzó (%s)\n", qPrintable(m_actual),
                             arriba ? arriba->metaObject()->className() : "-");
                return cerrar(ronda);
            }
            esperar(ronda, buscar, hacer, esperado + kPaso);
        });
    }

    // "Importar desde CSV…" with a small file: the file dialog answered, the
    // preview pictured and accepted, the closing box dismissed.
    void importarEjemplo(int ronda, QWidget* d, std::function<void()> alTerminar)
    {
        auto* accion = d->findChild<QAction*>(u"ImportarCSV"_s);
        if (!accion || !m_temporal.isValid())
            return cerrar(ronda);
        const QString ruta = m_temporal.filePath(u"ciudades.csv"_s);
        QFile archivo(ruta);
        if (!archivo.open(QIODevice::WriteOnly))
            return cerrar(ronda);
        archivo.write("\xEF\xBB\xBF" "CIUDAD\r\nOtavalo\r\nSalinas\r\nQUITO\r\nBaños de Agua Santa\r\notavalo\r\n"
                      "Puerto Francisco de Orellana (El Coca)\r\nAzogues\r\n");
        archivo.close();
        QTimer::singleShot(0, accion, &QAction::trigger);
        esperar(ronda, [](QWidget* w) { return qobject_cast<QFileDialog*>(w); },
                [=, this](QWidget* w) {
                    auto* dialogo = static_cast<QFileDialog*>(w);
                    // The name typed in the dialog's box, as a user would (selectFile
                    // leaves a box that has the focus alone).
                    if (auto* nombre = dialogo->findChild<QLineEdit*>(u"fileNameEdit"_s))
                        nombre->setText(ruta);
                    else
                        dialogo->selectFile(ruta);
                    QMetaObject::invokeMethod(dialogo, "accept");
                    esperar(ronda, [](QWidget* v) { return v && v->objectName() == u"frmImportar"_s ? v : nullptr; },
                            [=, this](QWidget* vista) {
                                guardar(vista->grab(), u"frmImportar"_s);
                                if (auto* b = vista->findChild<QAbstractButton*>(u"Bt(0)"_s))
                                    b->click();
                                esperar(ronda, [](QWidget* c) { return qobject_cast<QMessageBox*>(c); },
                                        [=](QWidget* caja) {
                                            static_cast<QMessageBox*>(caja)->accept();
                                            alTerminar();
                                        });
                            });
                });
    }

    // Closes the message box or dialog on top, again and again, until the
    // method has returned.
    void cerrar(int ronda)
    {
        if (!vigente(ronda))
            return;
        if (QWidget* arriba = QApplication::activeModalWidget()) {
            if (auto* dialogo = qobject_cast<QDialog*>(arriba))
                dialogo->reject();
            else
                arriba->close();
        }
        QTimer::singleShot(kAsentarse, this, [this, ronda] { cerrar(ronda); });
    }

    // A method that waits on a window that isn't modal: close every window
    // but the main one.
    void cerrarSueltas()
    {
        const auto ventanas = QApplication::topLevelWidgets();
        for (QWidget* w : ventanas) {
            if (w != &m_ventana && w->isVisible())
                w->close();
        }
    }

    void guardar(const QPixmap& imagen, const QString& nombre)
    {
        const QString ruta = QDir(m_carpeta).filePath(nombre + u".png"_s);
        if (imagen.save(ruta, "PNG")) {
            m_nombres.insert(nombre);
            m_escritos.append(ruta);
        } else {
            std::fprintf(stderr, "no se pudo guardar %s\n", qPrintable(ruta));
        }
    }

    VentanaDemo& m_ventana;
    QString m_carpeta;
    QString m_actual;
    QSet<QString> m_nombres;
    QStringList m_escritos;
    QTemporaryDir m_temporal;
    int m_ronda = 0;
    bool m_enCurso = false;
};

bool leerOpciones(const QApplication& app, Opciones& o)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(u"Anfitrión de demostración de los diálogos de Nomencla."_s);
    parser.addHelpOption();
    const QCommandLineOption socket(u"socket"_s, u"Socket Unix del servidor MariaDB/MySQL."_s, u"ruta"_s);
    const QCommandLineOption host(u"host"_s, u"Servidor MariaDB/MySQL."_s, u"nombre"_s);
    const QCommandLineOption port(u"port"_s, u"Puerto TCP del servidor."_s, u"número"_s);
    const QCommandLineOption user(u"user"_s, u"Usuario (root por omisión)."_s, u"usuario"_s, u"root"_s);
    const QCommandLineOption password(u"password"_s, u"Contraseña."_s, u"clave"_s);
    const QCommandLineOption database(u"database"_s, u"Base de datos."_s, u"nombre"_s);
    const QCommandLineOption pendientes(u"pendientes"_s,
                                        u"Archivo SQL con la tabla BkUpfac (segunda conexión, SQLite)."_s,
                                        u"archivo.sql"_s);
    const QCommandLineOption capturas(u"screenshots"_s,
                                      u"Abre cada diálogo, guarda su imagen en la carpeta y termina."_s,
                                      u"carpeta"_s);
    parser.addOptions({socket, host, port, user, password, database, pendientes, capturas});
    parser.process(app);

    o.socket = parser.value(socket);
    o.host = parser.value(host);
    o.usuario = parser.value(user);
    o.clave = parser.value(password);
    o.baseDatos = parser.value(database);
    o.pendientes = parser.value(pendientes);
    o.capturas = parser.value(capturas);
    if (parser.isSet(port)) {
        bool ok = false;
        o.puerto = parser.value(port).toInt(&ok);
        if (!ok || o.puerto <= 0 || o.puerto > 65535) {
            std::fprintf(stderr, "puerto no válido: %s\n", qPrintable(parser.value(port)));
            return false;
        }
    }
    if (o.baseDatos.isEmpty()) {
        std::fprintf(stderr, "falta --database\n");
        return false;
    }
    return true;
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication app(argc, argv);
    QApplication::setApplicationName(u"nomencla-demo"_s);

    Opciones o;
    if (!leerOpciones(app, o))
        return 2;

    QSqlDatabase principal = QSqlDatabase::addDatabase(u"QMYSQL"_s, u"principal"_s);
    principal.setDatabaseName(o.baseDatos);
    principal.setUserName(o.usuario);
    principal.setPassword(o.clave);
    QString descripcion;
    if (!o.socket.isEmpty()) {
        principal.setConnectOptions(u"UNIX_SOCKET="_s + o.socket);
        descripcion = o.baseDatos + u" en "_s + o.socket;
    } else {
        principal.setHostName(o.host.isEmpty() ? u"localhost"_s : o.host);
        if (o.puerto > 0)
            principal.setPort(o.puerto);
        descripcion = o.baseDatos + u" en "_s + principal.hostName() +
                      (o.puerto > 0 ? QString(u":"_s + QString::number(o.puerto)) : QString());
    }
    if (!principal.open()) {
        std::fprintf(stderr, "no se pudo abrir la base de datos: %s\n", qPrintable(principal.lastError().text()));
        return 1;
    }

    QSqlDatabase pendientes = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"pendientes"_s);
    pendientes.setDatabaseName(u":memory:"_s);
    if (!pendientes.open()) {
        std::fprintf(stderr, "no se pudo abrir SQLite: %s\n", qPrintable(pendientes.lastError().text()));
        return 1;
    }
    QString error;
    if (!o.pendientes.isEmpty()) {
        if (!cargarScript(pendientes, o.pendientes, error)) {
            std::fprintf(stderr, "%s\n", qPrintable(error));
            return 1;
        }
        descripcion += u"; pendientes: "_s + o.pendientes;
    } else {
        QSqlQuery(pendientes).exec(u"CREATE TABLE BkUpfac (id TEXT, cod INTEGER, numdoc TEXT, tip INTEGER)"_s);
    }

    int codigo = 0;
    {
        VentanaDemo ventana(principal, pendientes, descripcion);
        ventana.show();

        Capturador* capturador = nullptr;
        if (!o.capturas.isEmpty()) {
            if (!QDir().mkpath(o.capturas)) {
                std::fprintf(stderr, "no se pudo crear la carpeta %s\n", qPrintable(o.capturas));
                return 1;
            }
            capturador = new Capturador(ventana, o.capturas);
            capturador->setParent(&app);
            QTimer::singleShot(300, capturador, [capturador] { capturador->iniciar(); });
        }
        codigo = QApplication::exec();
    }
    principal.close();
    pendientes.close();
    return codigo;
}
