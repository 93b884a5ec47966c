#include "catalogues/frmLsContenido.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaSimple& frmLsContenido::datos()
{
    static const DatosListaSimple d = [] {
        DatosListaSimple x;
        x.forma = u"frmLsContenido"_s;
        x.titulo = u""_s;
        x.formato = u"<O B J E T O                           "_s;
        x.etiquetaTexto = u"&Objeto:"_s;
        x.etiquetaLista = u"Lista de objetos registrados"_s;
        x.txNuevo = u"&Nuevo"_s;
        x.keyPreview = false;
        x.importable = true;
        x.grillasPropias = false;
        x.lista = {u"SELECT nom, cod FROM lsContenidos WHERE  id=?  ORDER BY nom"_s, {Valor::Empresa}};
        x.campos = u"nom,cod"_s;
        x.insertar = {u"INSERT INTO lsContenidos (ID,nom) VALUES (?,?)"_s, {Valor::Empresa, Valor::V0}};
        x.referencia = {u"SELECT EXISTS(SELECT cod FROM sOrdenObjetos WHERE  id=? AND obj=?) AS tot"_s, {Valor::Empresa, Valor::V1}};
        x.borrar = {u"DELETE FROM lsContenidos WHERE cod=? AND id=?"_s, {Valor::V1, Valor::Empresa}};
        x.porClave = true;
        x.msgVacio = u"Debe especificar el nombre del objeto!"_s;
        x.msgDuplicado = u"El objeto que intenta guardar ya está registrado en la base de datos!"_s;
        x.msgReferencia = u"No se puede quitar el objeto ''%1'' debido a que se encuentra en uso en una orden!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar el objeto ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsContenido::frmLsContenido() : ListaSimple(datos()) {}

} // namespace nomencla
