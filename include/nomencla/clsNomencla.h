#pragma once
// Nomencla: master-data dialogs and pickers of the sales and accounting
// application. The host creates clsNomencla (or uses clsNomencla::aplicacion())
// and calls a method with the company key and its open connection; the method
// shows a modal dialog and, once the user closes it, returns what it left.
//
// Every method must be called from the GUI thread, with a QApplication alive.
// Database failures inside a dialog are shown to the user and never thrown to
// the host. The connection is used as given: the library opens and closes no
// connection, and keeps a handle to the last one it was given.
#include <QDate>
#include <QString>
#include <QVariant>
#include <QtGlobal>
#include <nomencla/nomencla_export.h>

class QSqlDatabase;

// Classes of stock lots (the values are not contiguous).
enum tipoLoteLS : qint32 {
    lsLotesCaducados = 0,
    lsLotesActivos = 1,
    lsLotesCuarentena = 2,
    lsLotesEnRevisión = 3,
    lsLotesEnRevision = lsLotesEnRevisión, // the same, for hosts that avoid accents in names
    lsLotesTodos = 10,
    lsLotesValidos = 11,
};

// Document kinds of the print model picker (1, 2 and 7 do not exist).
enum TipoDocImpresion : qint32 {
    impFactura = 0,
    impEntregaFacturar = 3,
    impNotaEntrega = 4,
    impRetencion = 5,
    impNotaCredito = 6,
    impRecibo = 8,
    impProforma = 9,
    impGuia = 10,
};

// A lot captured by AgregarLoteCaducidad.
struct InfoLotes {
    QString Lote;              // empty: no lot was captured
    QDate FechaCaducidad;
    qint32 Cantidad = 0;
    QString RegistroSanitario;
    QDate FechaFabricacion;
    QString PaisOrigen;
};

class NOMENCLA_EXPORT clsNomencla {
public:
    clsNomencla();
    ~clsNomencla(); // releases the shared service objects; dialogs and connections stay
    clsNomencla(const clsNomencla&) = delete;
    clsNomencla& operator=(const clsNomencla&) = delete;

    // The application object: methods callable without an instance of one's own.
    static clsNomencla& aplicacion();

    bool Contenidos(const QString& IdEmp, QSqlDatabase& Conexion);
    bool Ciudades(const QString& IdEmp, QSqlDatabase& Conexion);
    bool Bancos(const QString& IdEmp, QSqlDatabase& Conexion);
    bool CategoriaClientes(const QString& IdEmp, QSqlDatabase& Conexion);
    bool ZonaClientes(const QString& IdEmp, QSqlDatabase& Conexion);
    bool TipoClientes(const QString& IdEmp, QSqlDatabase& Conexion);
    bool DocumentAutorizSRI(const QString& IdEmp, QSqlDatabase& Conexion);
    bool SustentoTributario(const QString& IdEmp, QSqlDatabase& Conexion);
    bool Contratos(const QString& IdEmp, QSqlDatabase& Conexion);
    bool Cuentas(const QString& IdEmp, QSqlDatabase& Conexion);
    bool Empresas(const QString& IdEmp, QSqlDatabase& Conexion);
    bool Sucursales(const QString& IdEmp, QSqlDatabase& Conexion);
    bool SubProveedores(const QVariant& IdEmp, qint32 CodigoProveedor, QSqlDatabase& Conexion);
    bool Cargos(const QString& IdEmp, QSqlDatabase& Conexion);
    bool Departamentos(const QString& IdEmp, QSqlDatabase& Conexion);
    qint32 FacturasPendientes(const QString& IdEmp, const QString& NombreEmpresa,
                              QSqlDatabase& Conexion, QSqlDatabase& ConexionAcces);
    qint32 ElegirModeloImpresion(const QString& IdEmp, QSqlDatabase& Conexion, TipoDocImpresion TipoDoc);
    bool Paises(const QString& IdEmp, QSqlDatabase& Conexion);
    bool Medidas(const QString& IdEmp, QSqlDatabase& Conexion);
    bool AgregarLoteCaducidad(const QString& IdEmp, QSqlDatabase& Conexion, InfoLotes& infoLote);
    qint32 SeleccionarLote(const QString& IdEmp, QSqlDatabase& Conexion, qint32 CodigoArticulo,
                           qint32 CodBod = -1, tipoLoteLS TipLote = lsLotesTodos);
    qint32 FacturasPendientesVentas(const QString& NombreEmpresa, QSqlDatabase& Conexion,
                                    QSqlDatabase& ConexionAcces);
    void ListaFacturasCanceladas(const QString& IdEmp, qint32 CodigoPago, QSqlDatabase& Conexion);
    void ListaFechasIVA(const QString& IdEmp, QSqlDatabase& Conexion);
    bool ConfirmaUsuario(const QString& IdEmp, QSqlDatabase& Conexion, qint32 CodUsr = 0);
};
