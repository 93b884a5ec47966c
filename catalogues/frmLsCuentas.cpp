#include "catalogues/frmLsCuentas.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaNombrada& frmLsCuentas::datos()
{
    static const DatosListaNombrada d = [] {
        DatosListaNombrada x;
        x.forma = u"frmLsCuentas"_s;
        x.titulo = u"Administración de cuentas"_s;
        x.formato = u"NUMERO   DE   CONTRATO                                             |."_s;
        x.etiquetaTexto = u"No Contrato:"_s;
        x.etiquetaLista = u"Lista de bancos registrados"_s;
        x.keyPreview = true;
        x.importable = true;
        x.largoMinimo = 2;
        x.lista = {u"SELECT cta,cod FROM lsCuentas WHERE  id=? AND est=1 ORDER BY cta"_s, {Valor::Empresa}};
        x.campos = u"cta,cod"_s;
        x.insertar = {u"INSERT INTO lsCuentas (ID,cta,est) VALUES (?,?,1)"_s, {Valor::Empresa, Valor::V0}};
        x.actualizar = {u"UPDATE lsCuentas SET cta=? WHERE cod=? AND id=?"_s, {Valor::V0, Valor::V1, Valor::Empresa}};
        x.quitar = {u"UPDATE lsCuentas SET EST=0 WHERE cod=? AND id=?"_s, {Valor::V1, Valor::Empresa}};
        x.msgDuplicado = u"El cuenta ya se encuentra registrada en la lista!"_s;
        x.msgConfirmar = u"Está seguro que desea eliminar ''%1'' de la lista de cuentas registradas en el sistema?"_s;
        return x;
    }();
    return d;
}

frmLsCuentas::frmLsCuentas() : ListaNombrada(datos()) {}

} // namespace nomencla
