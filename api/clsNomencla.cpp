#include <nomencla/clsNomencla.h>

#include "core/Module1.h"
#include "core/clsGrillas.h"
#include "core/clsServicios.h"

#include "catalogues/frmLsBancos.h"
#include "catalogues/frmLsCargos.h"
#include "catalogues/frmLsCategorias.h"
#include "catalogues/frmLsCiudad.h"
#include "catalogues/frmLsContenido.h"
#include "catalogues/frmLsContratos.h"
#include "catalogues/frmLsCuentas.h"
#include "catalogues/frmLsDepartam.h"
#include "catalogues/frmLsDocAutSRI.h"
#include "catalogues/frmLsPaises.h"
#include "catalogues/frmLsSustentos.h"
#include "catalogues/frmLsTipoCli.h"
#include "catalogues/frmLsZona.h"
#include "catalogues/frmMedidas.h"
#include "company/frmEmpresas.h"
#include "company/frmSubProveedor.h"
#include "company/frmSucursales.h"
#include "pickers/frmCaducidades.h"
#include "pickers/frmImpresion.h"
#include "pickers/frmListaFacPaga.h"
#include "pickers/frmListaFechasIVA.h"
#include "pickers/frmLotes.h"
#include "pickers/frmPendientes.h"

using nomencla::M;

namespace {

// The common pattern of a method: the company key and the connection go to
// the shared state, then the dialog's single instance is shown modally.
template <class F> void abrir(const QString& IdEmp, QSqlDatabase& Conexion)
{
    M().IdEmp = IdEmp;
    M().Conexion = Conexion;
    M().instancia<F>().Show();
}

template <class F> bool mantener(const QString& IdEmp, QSqlDatabase& Conexion)
{
    abrir<F>(IdEmp, Conexion);
    return M().HuboCambios;
}

} // namespace

clsNomencla::clsNomencla() = default;

clsNomencla::~clsNomencla()
{
    // Gives up the shared services; connections and dialogs stay. A state
    // already gone (a host's static object, destroyed after the thread's
    // state) has nothing left to give up.
    if (nomencla::Module1* estado = nomencla::estadoSiExiste()) {
        estado->Servicios.reset();
        estado->Grillas.reset();
    }
}

clsNomencla& clsNomencla::aplicacion()
{
    // The shared state exists before the object, so it is destroyed after it.
    M();
    static thread_local clsNomencla objeto;
    return objeto;
}

bool clsNomencla::Contenidos(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsContenido>(IdEmp, Conexion);
}

bool clsNomencla::Ciudades(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsCiudad>(IdEmp, Conexion);
}

bool clsNomencla::Bancos(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsBancos>(IdEmp, Conexion);
}

bool clsNomencla::CategoriaClientes(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsCategorias>(IdEmp, Conexion);
}

bool clsNomencla::ZonaClientes(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsZona>(IdEmp, Conexion);
}

bool clsNomencla::TipoClientes(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsTipoCli>(IdEmp, Conexion);
}

bool clsNomencla::DocumentAutorizSRI(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsDocAutSRI>(IdEmp, Conexion);
}

bool clsNomencla::SustentoTributario(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsSustentos>(IdEmp, Conexion);
}

bool clsNomencla::Contratos(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsContratos>(IdEmp, Conexion);
}

bool clsNomencla::Cuentas(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsCuentas>(IdEmp, Conexion);
}

bool clsNomencla::Empresas(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmEmpresas>(IdEmp, Conexion);
}

bool clsNomencla::Sucursales(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmSucursales>(IdEmp, Conexion);
}

bool clsNomencla::SubProveedores(const QVariant& IdEmp, qint32 CodigoProveedor, QSqlDatabase& Conexion)
{
    M().CodigoProveedor = CodigoProveedor;
    return mantener<nomencla::frmSubProveedor>(IdEmp.toString(), Conexion);
}

bool clsNomencla::Cargos(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsCargos>(IdEmp, Conexion);
}

bool clsNomencla::Departamentos(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsDepartam>(IdEmp, Conexion);
}

qint32 clsNomencla::FacturasPendientes(const QString& IdEmp, const QString& NombreEmpresa, QSqlDatabase& Conexion,
                                       QSqlDatabase& ConexionAcces)
{
    M().NombreEmpresa = NombreEmpresa;
    M().ConexionAcces = ConexionAcces;
    M().TipoPendiente = 1;
    abrir<nomencla::frmPendientes>(IdEmp, Conexion);
    return M().ValorDocumento;
}

qint32 clsNomencla::ElegirModeloImpresion(const QString& IdEmp, QSqlDatabase& Conexion, TipoDocImpresion TipoDoc)
{
    M().ValorDocumento = TipoDoc;
    abrir<nomencla::frmImpresion>(IdEmp, Conexion);
    return M().ModeloImpresion;
}

bool clsNomencla::Paises(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmLsPaises>(IdEmp, Conexion);
}

bool clsNomencla::Medidas(const QString& IdEmp, QSqlDatabase& Conexion)
{
    return mantener<nomencla::frmMedidas>(IdEmp, Conexion);
}

bool clsNomencla::AgregarLoteCaducidad(const QString& IdEmp, QSqlDatabase& Conexion, InfoLotes& infoLote)
{
    abrir<nomencla::frmLotes>(IdEmp, Conexion);
    // The whole record goes back, also when the dialog was cancelled.
    infoLote = M().LoteCapturado;
    return !M().LoteCapturado.Lote.isEmpty();
}

qint32 clsNomencla::SeleccionarLote(const QString& IdEmp, QSqlDatabase& Conexion, qint32 CodigoArticulo, qint32 CodBod,
                                    tipoLoteLS TipLote)
{
    M().ValorDocumento = CodigoArticulo;
    M().TipoLoteElegido = TipLote;
    M().BodegaElegida = CodBod;
    abrir<nomencla::frmCaducidades>(IdEmp, Conexion);
    return M().ValorDocumento;
}

qint32 clsNomencla::FacturasPendientesVentas(const QString& NombreEmpresa, QSqlDatabase& Conexion,
                                             QSqlDatabase& ConexionAcces)
{
    // No company key here: the dialog filters by the one the previous call left.
    M().NombreEmpresa = NombreEmpresa;
    M().Conexion = Conexion;
    M().ConexionAcces = ConexionAcces;
    M().TipoPendiente = 0;
    M().instancia<nomencla::frmPendientes>().Show();
    return M().ValorDocumento;
}

void clsNomencla::ListaFacturasCanceladas(const QString& IdEmp, qint32 CodigoPago, QSqlDatabase& Conexion)
{
    M().ValorDocumento = CodigoPago;
    abrir<nomencla::frmListaFacPaga>(IdEmp, Conexion);
}

void clsNomencla::ListaFechasIVA(const QString& IdEmp, QSqlDatabase& Conexion)
{
    abrir<nomencla::frmListaFechasIVA>(IdEmp, Conexion);
}

bool clsNomencla::ConfirmaUsuario(const QString& IdEmp, QSqlDatabase& Conexion, qint32 CodUsr)
{
    Q_UNUSED(CodUsr);
    M().IdEmp = IdEmp;
    M().Conexion = Conexion;
    return false;
}
