#include "catalogues/frmLsCargos.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaCodificada& frmLsCargos::datos()
{
    static const DatosListaCodificada d = [] {
        DatosListaCodificada x;
        x.forma = u"frmLsCargos"_s;
        x.titulo = u"Administración de cargos"_s;
        x.keyPreview = false;
        x.importable = true;
        x.formato = u"<CARGO               |<DESCRIPCION DEL CARGO                                                  |."_s;
        x.etiquetaLista = u"&Lista de cargos registrados"_s;
        x.etiquetaTexto0 = u"&Cargo:"_s;
        x.etiquetaTexto1 = u"&Descripción:"_s;
        x.limite0 = 50;
        x.limite1 = 150;
        x.multilinea1 = true;
        x.bannerInicial = u"CREANDO NUEVO CARGO"_s;
        x.bannerNuevo = u"CREANDO NUEVO CARGO"_s;
        x.bannerExistente = u"MODIFICANDO CARGO EXISTENTE"_s;
        x.campoConfirmar = 0;
        x.lista = {u"SELECT car,des,cod FROM Cargos WHERE  id=? AND est=1 ORDER BY car"_s, {Valor::Empresa}};
        x.campos = u"car,des,cod"_s;
        x.insertar = {u"INSERT INTO Cargos (id,car,des,est) VALUES (?,?,?,1)"_s, {Valor::Empresa, Valor::V0, Valor::V1}};
        x.actualizar = {u"UPDATE Cargos SET car=?, des=? WHERE cod=? AND id=?"_s,
                        {Valor::V0, Valor::V1, Valor::V2, Valor::Empresa}};
        x.referencia = {u"SELECT EXISTS(SELECT cod FROM mvendedor WHERE car=? AND id=?) AS tot"_s, {Valor::V2, Valor::Empresa}};
        x.borrar = {u"UPDATE Cargos SET est=0 WHERE cod=? AND id=?"_s, {Valor::V2, Valor::Empresa}};
        x.msgVacio = u"Debe especificar el nombre del cargo!"_s;
        x.msgDuplicado = u"El cargo ya se encuentra registrado en la lista!"_s;
        x.msgReferencia = u"No se puede quitar el cargo ''%1'' debido a que se encuentra asignado a uno o mas empleados!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar el cargo ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsCargos::frmLsCargos() : ListaCodificada(datos()) {}

} // namespace nomencla
