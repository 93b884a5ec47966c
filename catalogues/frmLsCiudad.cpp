#include "catalogues/frmLsCiudad.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaSimple& frmLsCiudad::datos()
{
    static const DatosListaSimple d = [] {
        DatosListaSimple x;
        x.forma = u"frmLsCiudad"_s;
        x.titulo = u"Lista de ciudades"_s;
        x.formato = u"<C I U D A D                              "_s;
        x.etiquetaTexto = u"&Ciudad:"_s;
        x.etiquetaLista = u"Lista de ciudades registradas"_s;
        x.txNuevo = u"&Nueva"_s;
        x.keyPreview = true;
        x.importable = true;
        x.grillasPropias = true;
        x.lista = {u"SELECT ciu FROM lsCiudades WHERE  id=? ORDER BY ciu"_s, {Valor::Empresa}};
        x.campos = u"Ciu"_s;
        x.insertar = {u"INSERT INTO lsCiudades (id,ciu) VALUES (?,?)"_s, {Valor::Empresa, Valor::V0}};
        x.referencia = {u"SELECT EXISTS(SELECT cod FROM mCliente WHERE  id=? AND  ciu=?) AS tot"_s, {Valor::Empresa, Valor::V0}};
        x.borrar = {u"DELETE FROM lsciudades WHERE  id=? AND  ciu=?"_s, {Valor::Empresa, Valor::V0}};
        x.porClave = false;
        x.msgVacio = u"Debe especificar el nombre de la ciudad!"_s;
        x.msgDuplicado = u"La ciudad que intenta guardar ya está registrada en la base de datos!"_s;
        x.msgReferencia = u"No se puede quitar la ciudad ''%1'' debido a que se encuentra asignada a uno o mas clientes!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar la ciudad ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsCiudad::frmLsCiudad() : ListaSimple(datos()) {}

} // namespace nomencla
