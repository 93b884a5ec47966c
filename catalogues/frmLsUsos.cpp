#include "catalogues/frmLsUsos.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaSimple& frmLsUsos::datos()
{
    static const DatosListaSimple d = [] {
        DatosListaSimple x;
        x.forma = u"frmLsUsos"_s;
        x.titulo = u"Usos / aplicaciones"_s;
        x.formato = u"<USOS  /  APLICACIONES           "_s;
        x.etiquetaTexto = u"&Uso/aplicación:"_s;
        x.etiquetaLista = u"Lista de usos registrados"_s;
        x.txNuevo = u"&Nueva"_s;
        x.keyPreview = false;
        x.grillasPropias = false;
        x.lista = {u"SELECT uso FROM lsUsos WHERE  id=? ORDER BY uso"_s, {Valor::Empresa}};
        x.campos = u"uso"_s;
        x.insertar = {u"INSERT INTO lsUsos (ID,uso) VALUES (?,?)"_s, {Valor::Empresa, Valor::V0}};
        x.referencia = {};
        x.borrar = {u"DELETE FROM lsUsos WHERE  id=? AND uso=?"_s, {Valor::Empresa, Valor::V0}};
        x.porClave = false;
        x.msgVacio = u"Debe especificar el uso o aplicación!"_s;
        x.msgDuplicado = u"El uso/aplicación que intenta guardar ya está registrado en la base de datos!"_s;
        x.msgReferencia = u""_s;
        x.msgConfirmar = u"Está seguro que desea quitar el uso/aplicación ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsUsos::frmLsUsos() : ListaSimple(datos()) {}

} // namespace nomencla
