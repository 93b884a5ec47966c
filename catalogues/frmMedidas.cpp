#include "catalogues/frmMedidas.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaSimple& frmMedidas::datos()
{
    static const DatosListaSimple d = [] {
        DatosListaSimple x;
        x.forma = u"frmMedidas"_s;
        x.titulo = u"Unidades de medida/presentación"_s;
        x.formato = u"<MEDIDA             |<ABREV.|."_s;
        x.etiquetaTexto = u"&Medida/Present.:"_s;
        x.etiquetaSegundo = u"A&breviación:"_s;
        x.etiquetaLista = u"Lista de medidas registradas"_s;
        x.txNuevo = u"&Nueva"_s;
        x.largoTexto = 20;
        x.largoSegundo = 10;
        x.enterGuarda = false;
        x.keyPreview = false;
        x.importable = true;
        x.grillasPropias = true;
        // V0 the name, V2 the abbreviation.
        x.lista = {u"SELECT med,abr FROM amedidas WHERE  id=? ORDER BY med"_s, {Valor::Empresa}};
        x.campos = u"med,abr"_s;
        x.insertar = {u"INSERT INTO aMedidas (id,med,abr) VALUES (?,?,?)"_s, {Valor::Empresa, Valor::V0, Valor::V2}};
        x.referencia = {u"SELECT EXISTS(SELECT cod FROM mArticulo WHERE  id=? AND  med=?) AS tot"_s, {Valor::Empresa, Valor::V2}};
        // Articles keep the abbreviation only: while another unit of the company
        // has the same one, they still have their unit and this one may go.
        x.suplente = {u"SELECT EXISTS(SELECT * FROM amedidas WHERE  id=? AND  abr=? AND  med<>?) AS tot"_s,
                      {Valor::Empresa, Valor::V2, Valor::V0}};
        x.borrar = {u"DELETE FROM amedidas WHERE  id=? AND  med=?"_s, {Valor::Empresa, Valor::V0}};
        x.porClave = false;
        x.msgVacio = u"Debe especificar el nombre y la abreviación de la medida/presentacion!"_s;
        x.msgDuplicado = u"La medida/presentación que intenta guardar ya está registrada en la base de datos!"_s;
        x.msgReferencia = u"No se puede quitar la medida/presentación ''%1'' debido a que se encuentra asignada a uno o más artículos!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar la medida/presentación ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmMedidas::frmMedidas() : ListaSimple(datos()) {}

} // namespace nomencla
