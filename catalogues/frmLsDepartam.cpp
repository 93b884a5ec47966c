#include "catalogues/frmLsDepartam.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaSimple& frmLsDepartam::datos()
{
    static const DatosListaSimple d = [] {
        DatosListaSimple x;
        x.forma = u"frmLsDepartam"_s;
        x.titulo = u"Administración de departamentos"_s;
        x.formato = u"<D E P A R T A M E N T O S                             "_s;
        x.etiquetaTexto = u"&Departamento:"_s;
        x.etiquetaLista = u"Lista de departamentos registrados"_s;
        x.txNuevo = u"&Nueva"_s;
        x.keyPreview = false;
        x.importable = true;
        x.grillasPropias = false;
        x.lista = {u"SELECT depa FROM lsDepartam WHERE  id=? ORDER BY depa"_s, {Valor::Empresa}};
        x.campos = u"depa"_s;
        x.insertar = {u"INSERT INTO lsDepartam (ID,depa) VALUES (?,?)"_s, {Valor::Empresa, Valor::V0}};
        x.referencia = {u"SELECT EXISTS(SELECT cod FROM mvendedor WHERE  id=? AND depa=?) AS tot"_s, {Valor::Empresa, Valor::V0}};
        x.borrar = {u"DELETE FROM lsDepartam WHERE  id=? AND depa=?"_s, {Valor::Empresa, Valor::V0}};
        x.porClave = false;
        x.msgVacio = u"Debe especificar el nombre del departamento!"_s;
        x.msgDuplicado = u"El departamento que intenta guardar ya está registrado en la base de datos!"_s;
        x.msgReferencia = u"No se puede quitar el departamento ''%1'' debido a que se encuentra asignado a uno o más empleados!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar el departamento ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsDepartam::frmLsDepartam() : ListaSimple(datos()) {}

} // namespace nomencla
