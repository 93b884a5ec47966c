#include "catalogues/frmLsContratos.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaNombrada& frmLsContratos::datos()
{
    static const DatosListaNombrada d = [] {
        DatosListaNombrada x;
        x.forma = u"frmLsContratos"_s;
        x.titulo = u"Administración de contratos"_s;
        x.formato = u"NUMERO   DE   CONTRATO                                             |."_s;
        x.etiquetaTexto = u"No Contrato:"_s;
        x.etiquetaLista = u"Lista de bancos registrados"_s;
        x.keyPreview = false;
        x.importable = true;
        x.largoMinimo = 2;
        x.lista = {u"SELECT con,cod FROM lscontratos WHERE  id=? AND est=1 ORDER BY con"_s, {Valor::Empresa}};
        x.campos = u"con,cod"_s;
        x.insertar = {u"INSERT INTO lscontratos (ID,con,est) VALUES (? ,?,1)"_s, {Valor::Empresa, Valor::V0}};
        x.actualizar = {u"UPDATE lscontratos SET con=? WHERE cod=? AND id=?"_s, {Valor::V0, Valor::V1, Valor::Empresa}};
        x.quitar = {u"UPDATE lscontratos SET EST=0 WHERE cod=? AND id=?"_s, {Valor::V1, Valor::Empresa}};
        x.msgDuplicado = u"El contrato ya se encuentra registrado en la lista!"_s;
        x.msgConfirmar = u"Está seguro que desea eliminar ''%1'' de la lista de contratos registrados en el sistema?"_s;
        return x;
    }();
    return d;
}

frmLsContratos::frmLsContratos() : ListaNombrada(datos()) {}

} // namespace nomencla
