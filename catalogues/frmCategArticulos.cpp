#include "catalogues/frmCategArticulos.h"

#include "catalogues/frmLsCiudad.h"

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaSimple& frmCategArticulos::datos()
{
    // The cities' statements and messages, unchanged, under the titles of article categories.
    static const DatosListaSimple d = [] {
        DatosListaSimple x = frmLsCiudad::datos();
        x.forma = u"frmCategArticulos"_s;
        x.titulo = u"Categorías de artículos"_s;
        x.formato = u"<C A T E G O R I A                    "_s;
        x.etiquetaTexto = u"&Categoría:"_s;
        x.etiquetaLista = u"Lista de categorías registradas"_s;
        x.keyPreview = false;
        return x;
    }();
    return d;
}

frmCategArticulos::frmCategArticulos() : ListaSimple(datos()) {}

} // namespace nomencla
