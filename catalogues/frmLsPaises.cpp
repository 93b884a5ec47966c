#include "catalogues/frmLsPaises.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaNombrada& frmLsPaises::datos()
{
    static const DatosListaNombrada d = [] {
        DatosListaNombrada x;
        x.forma = u"frmLsPaises"_s;
        x.titulo = u"Lista de países"_s;
        x.formato = u"PAISES REGISTRADOS                  |."_s;
        x.etiquetaTexto = u"Nombre del país"_s;
        x.etiquetaLista = u"Lista de países registrados"_s;
        x.keyPreview = false;
        x.importable = true;
        x.largoMinimo = 6;
        x.lista = {u"SELECT nom,cod FROM lsPaises WHERE  id=? ORDER BY nom"_s, {Valor::Empresa}};
        x.campos = u"nom,cod"_s;
        x.insertar = {u"INSERT INTO lsPaises (ID,nom) VALUES (?,?)"_s, {Valor::Empresa, Valor::V0}};
        x.actualizar = {u"UPDATE lsPaises SET nom=? WHERE cod=? AND id=?"_s, {Valor::V0, Valor::V1, Valor::Empresa}};
        x.quitar = {u"DELETE FROM lsPaises  WHERE cod=? AND id=?"_s, {Valor::V1, Valor::Empresa}};
        x.msgDuplicado = u"El país ya se encuentra registrado en la lista!"_s;
        x.msgConfirmar = u"Está seguro que desea eliminar ''%1'' de la lista de países registrados en el sistema?"_s;
        return x;
    }();
    return d;
}

frmLsPaises::frmLsPaises() : ListaNombrada(datos()) {}

} // namespace nomencla
