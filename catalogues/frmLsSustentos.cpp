#include "catalogues/frmLsSustentos.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaCodificada& frmLsSustentos::datos()
{
    static const DatosListaCodificada d = [] {
        DatosListaCodificada x;
        x.forma = u"frmLsSustentos"_s;
        x.titulo = u"Sustentos tributarios SRI"_s;
        x.keyPreview = false;
        x.importable = true;
        x.formato = u"^CODIGO |<NOMBRE DEL SUSTENTO TRIBUTARIO                  |."_s;
        x.etiquetaLista = u"&Lista de documntos registrados"_s;
        x.etiquetaTexto0 = u"&Codigo SRI:"_s;
        x.etiquetaTexto1 = u"Sustento:"_s;
        x.limite0 = 3;
        x.centrado0 = true;
        x.limite1 = 150;
        x.multilinea1 = false;
        x.bannerInicial = u"CREANDO NUEVO SUSTENTO"_s;
        x.bannerNuevo = u"CREANDO NUEVO SUSTENTO"_s;
        x.bannerExistente = u"MODIFICANDO SUSTENTO EXISTENTE"_s;
        x.campoConfirmar = 1;
        x.lista = {u"SELECT cin,des,cod FROM SRI_Sustentos WHERE  id=? AND est=1 ORDER BY cin"_s, {Valor::Empresa}};
        x.campos = u"cin,des,cod"_s;
        x.insertar = {u"INSERT INTO SRI_Sustentos (ID,cin,des,est) VALUES (?,?,?,1)"_s,
                      {Valor::Empresa, Valor::V0, Valor::V1}};
        x.actualizar = {u"UPDATE SRI_Sustentos SET cin=?, des=? WHERE cod=? AND id=?"_s,
                        {Valor::V0, Valor::V1, Valor::V2, Valor::Empresa}};
        x.borrar = {u"UPDATE SRI_Sustentos SET est=0 WHERE cod=? AND id=?"_s, {Valor::V2, Valor::Empresa}};
        x.msgVacio = u"Debe especificar el nombre del sustento tributario autorizado por el SRI!"_s;
        x.msgDuplicado = u"El tipo de sustento tributario ya encuentra registrado en la lista!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar el sustento ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsSustentos::frmLsSustentos() : ListaCodificada(datos()) {}

} // namespace nomencla
