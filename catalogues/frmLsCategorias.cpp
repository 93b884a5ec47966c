#include "catalogues/frmLsCategorias.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaCodificada& frmLsCategorias::datos()
{
    static const DatosListaCodificada d = [] {
        DatosListaCodificada x;
        x.forma = u"frmLsCategorias"_s;
        x.titulo = u"Categorías de clientes"_s;
        x.keyPreview = true;
        x.importable = true;
        x.formato = u"<CATEGORIA              |<DESCRIPCION DE LA CATEGORÍA                                                  |."_s;
        x.etiquetaLista = u"&Lista de categorías registradas"_s;
        x.etiquetaTexto0 = u"&Categoría:"_s;
        x.etiquetaTexto1 = u"&Descripción:"_s;
        x.limite0 = 50;
        x.limite1 = 150;
        x.multilinea1 = true;
        x.bannerInicial = u"CREANDO NUEVA CATEGORIA"_s;
        x.bannerNuevo = u"CREANDO NUEVA CATEGORIA"_s;
        x.bannerExistente = u"MODIFICANDO CATEGORIA EXISTENTE"_s;
        x.campoConfirmar = 0;
        x.lista = {u"SELECT cat,des,cod FROM mCatClie WHERE  id=? AND est=1 ORDER BY cat"_s, {Valor::Empresa}};
        x.campos = u"cat,des,cod"_s;
        x.clave = {u"SELECT MAX(cod) AS mco FROM mCatClie where  id=?"_s, {Valor::Empresa}};
        x.insertar = {u"INSERT INTO mCatClie (id,cod,cat,des,est) VALUES (?,?,?,?,1)"_s,
                      {Valor::Empresa, Valor::V2, Valor::V0, Valor::V1}};
        x.actualizar = {u"UPDATE mCatClie SET cat=?, des=? WHERE cod=? AND id=?"_s,
                        {Valor::V0, Valor::V1, Valor::V2, Valor::Empresa}};
        x.referencia = {u"SELECT EXISTS(SELECT cod FROM mCliente WHERE  cat=? AND id=?) AS tot"_s, {Valor::V2, Valor::Empresa}};
        x.borrar = {u"UPDATE mCatClie SET est=0 WHERE cod=? AND id=?"_s, {Valor::V2, Valor::Empresa}};
        x.msgVacio = u"Debe especificar el nombre de la categoría!"_s;
        x.msgDuplicado = u"La categoría ya se encuentra registrada en la lista!"_s;
        x.msgReferencia = u"No se puede quitar la categoría ''%1'' debido a que se encuentra asignada a uno o mas clientes!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar la categoría ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsCategorias::frmLsCategorias() : ListaCodificada(datos()) {}

} // namespace nomencla
