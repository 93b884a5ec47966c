#include "catalogues/frmLsComponente.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaSimple& frmLsComponente::datos()
{
    static const DatosListaSimple d = [] {
        DatosListaSimple x;
        x.forma = u"frmLsComponente"_s;
        x.titulo = u"Componentes"_s;
        x.formato = u"<C O M P O N E N T E S             "_s;
        x.etiquetaTexto = u"&Componente:"_s;
        x.etiquetaLista = u"Lista de componentes registrados"_s;
        x.txNuevo = u"&Nueva"_s;
        x.keyPreview = false;
        x.grillasPropias = false;
        x.lista = {u"SELECT com FROM lsComponente WHERE  id=? ORDER BY com"_s, {Valor::Empresa}};
        x.campos = u"com"_s;
        x.insertar = {u"INSERT INTO lsComponente (ID,com) VALUES (?,?)"_s, {Valor::Empresa, Valor::V0}};
        x.referencia = {};
        x.borrar = {u"DELETE FROM lsComponente WHERE  id=? AND  com=?"_s, {Valor::Empresa, Valor::V0}};
        x.porClave = false;
        x.msgVacio = u"Debe especificar el nombre del componente!"_s;
        x.msgDuplicado = u"El componente que intenta guardar ya está registrado en la base de datos!"_s;
        x.msgReferencia = u""_s;
        x.msgConfirmar = u"Está seguro que desea quitar el componente ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsComponente::frmLsComponente() : ListaSimple(datos()) {}

} // namespace nomencla
