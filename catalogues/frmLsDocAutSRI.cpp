#include "catalogues/frmLsDocAutSRI.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaCodificada& frmLsDocAutSRI::datos()
{
    static const DatosListaCodificada d = [] {
        DatosListaCodificada x;
        x.forma = u"frmLsDocAutSRI"_s;
        x.titulo = u"Documentos autorizados SRI"_s;
        x.keyPreview = true;
        x.importable = true;
        x.formato = u"^CODIGO |<NOMBRE DEL DOCUMENTO                |."_s;
        x.etiquetaLista = u"&Lista de documentos registrados"_s;
        x.etiquetaTexto0 = u"&Codigo SRI:"_s;
        x.etiquetaTexto1 = u"Documento:"_s;
        x.limite0 = 3;
        x.centrado0 = true;
        x.limite1 = 30;
        x.multilinea1 = false;
        x.bannerInicial = u"CREANDO NUEVO DUCUMENTO"_s; // as designed; Nuevo writes it right
        x.bannerNuevo = u"CREANDO NUEVO DOCUMENTO"_s;
        x.bannerExistente = u"MODIFICANDO DOCUMENTO EXISTENTE"_s;
        x.campoConfirmar = 1;
        x.lista = {u"SELECT cin,des,cod FROM SRI_Documentos WHERE  id=? AND est=1 ORDER BY cin"_s, {Valor::Empresa}};
        x.campos = u"cin,des,cod"_s;
        x.insertar = {u"INSERT INTO SRI_Documentos (ID,cin,des,est) VALUES (?,?,?,1)"_s,
                      {Valor::Empresa, Valor::V0, Valor::V1}};
        x.actualizar = {u"UPDATE SRI_Documentos SET cin=?, des=? WHERE cod=? AND id=?"_s,
                        {Valor::V0, Valor::V1, Valor::V2, Valor::Empresa}};
        x.borrar = {u"UPDATE SRI_Documentos SET est=0 WHERE cod=? AND id=?"_s, {Valor::V2, Valor::Empresa}};
        x.msgVacio = u"Debe especificar el nombre del documento autorizado por el SRI!"_s;
        x.msgDuplicado = u"El tipo de documento ya encuentra registrado en la lista!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar el documento ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsDocAutSRI::frmLsDocAutSRI() : ListaCodificada(datos()) {}

} // namespace nomencla
