#include "catalogues/frmLsTipoCli.h"

#include "core/Alfarje.h"
#include "core/Controles.h"
#include "core/Module1.h"
#include "core/clsServicios.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QRegularExpression>

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaCodificada& frmLsTipoCli::datos()
{
    static const DatosListaCodificada d = [] {
        DatosListaCodificada x;
        x.forma = u"frmLsTipoCli"_s;
        x.titulo = u"Tipos de clientes"_s;
        x.keyPreview = true;
        // Each figure under a heading of its own, in the order of the cells
        // (tip, des, cre, pla, descu, cod), so the row reads as it is stored.
        x.formato = u"<TIPO DE CLIENTE         |<DESCRIPCION                   |>CUPO CRED.  |>PLAZO DÍAS  |>DESC.%  |."_s;
        x.columnaClave = 5;
        x.etiquetaLista = u"&Lista de categorías registradas"_s;
        x.etiquetaTexto0 = u"Tipo:"_s;
        x.etiquetaTexto1 = u"&Descripción:"_s;
        x.limite0 = 50;
        x.limite1 = 150;
        x.multilinea1 = true;
        x.bannerInicial = u"CREANDO NUEVO TIPO"_s;
        x.bannerNuevo = u"CREANDO NUEVO TIPO"_s;
        x.bannerExistente = u"MODIFICANDO TIPO EXISTENTE"_s;
        x.campoConfirmar = 0;
        // V3, V4, V5: credit, term and discount, bound as numbers.
        x.lista = {u"SELECT tip,des,cre,pla,descu,cod FROM mTipClie WHERE  id=? AND est=1 ORDER BY tip"_s, {Valor::Empresa}};
        x.campos = u"tip,des,cre,pla,descu,cod"_s;
        x.clave = {u"SELECT MAX(cod) AS mco FROM mTipClie WHERE  id=?"_s, {Valor::Empresa}};
        x.insertar = {u"INSERT INTO mTipClie (ID,cod,tip,des,cre,pla,descu,inte,est) VALUES (?,?,?,?,?,?,?,0,1)"_s,
                      {Valor::Empresa, Valor::V2, Valor::V0, Valor::V1, Valor::V3, Valor::V4, Valor::V5}};
        x.actualizar = {u"UPDATE mTipClie SET tip=?, des=?,cre=?,pla=?,descu=? WHERE cod=? AND id=?"_s,
                        {Valor::V0, Valor::V1, Valor::V3, Valor::V4, Valor::V5, Valor::V2, Valor::Empresa}};
        x.referencia = {u"SELECT EXISTS(SELECT cod FROM mCliente WHERE  id=? AND tip=?) AS tot"_s, {Valor::Empresa, Valor::V2}};
        x.borrar = {u"UPDATE mTipClie SET est=0 WHERE cod=? AND id=?"_s, {Valor::V2, Valor::Empresa}};
        x.msgVacio = u"Debe especificar el nombre del tipo de cliente!"_s;
        x.msgDuplicado = u"El tipo ingresado ya se encuentra registrado en la lista!"_s;
        x.msgReferencia = u"No se puede quitar el tipo ''%1'' debido a que se encuentra asignado a uno o mas clientes!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar el tipo ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

frmLsTipoCli::frmLsTipoCli() : ListaCodificada(datos()) {}

void frmLsTipoCli::DisenarExtra(QWidget* lienzo, QGridLayout* campos, QBoxLayout*)
{
    struct Cifra {
        const char16_t* etiqueta;
        const char16_t* unidad;
        int decimales;
    };
    // The unit stands behind the box.
    static const Cifra cifras[3] = {{u"&Máximo crédito:", u"$", 0}, {u"&Plazo máximo:", u"días", 0},
                                    {u"D&escuento:", u"%", 2}};
    for (int i = 0; i < 3; ++i) {
        const int indice = i + 2;
        auto* etiqueta = new Etiqueta(QString::fromUtf16(cifras[i].etiqueta), lienzo);
        etiqueta->setObjectName(u"Label1(%1)"_s.arg(indice + 1));
        auto* caja = new CajaTexto(lienzo, 6);
        caja->setObjectName(u"Tx(%1)"_s.arg(indice));
        caja->setSoloNumero(cifras[i].decimales);
        caja->setAlignment(Qt::AlignCenter);
        caja->setFixedWidth(caja->fontMetrics().horizontalAdvance(u"0"_s) * 10 + 12);
        etiqueta->setBuddy(caja);
        const int decimales = cifras[i].decimales;
        connect(caja, &CajaTexto::KeyPress, this, [caja, decimales](int& KeyAscii) {
            KeyAscii = M().servicios().FiltrarTecla(caja, KeyAscii, decimales, 0, 6, 0);
        });
        auto* fila = new QHBoxLayout;
        fila->addWidget(caja);
        fila->addWidget(new Etiqueta(QString::fromUtf16(cifras[i].unidad), lienzo));
        fila->addStretch();
        const int f = campos->rowCount();
        campos->addWidget(etiqueta, f, 0);
        campos->addLayout(fila, f, 1);
    }
    GR->setColumnFormat(2, u"#,##0.00"_s);
    GR->setColumnFormat(3, u"0"_s);
    GR->setColumnFormat(4, u"0.00"_s);
}

QVariantList frmLsTipoCli::valoresExtra() const
{
    return {valorDe(2, clsServicios::Val(texto(2))), valorDe(3, clsServicios::Val(texto(3))),
            valorDe(4, clsServicios::Val(texto(4)))};
}

void frmLsTipoCli::NuevoExtra()
{
    for (int i = 2; i <= 4; ++i)
        ponerTexto(i, QString());
}

void frmLsTipoCli::MostrarExtra(qint32 fila)
{
    // The stored figure in its plain form (1500, 30, 12.5), as one would type it.
    for (int i = 2; i <= 4; ++i) {
        const double cifra = clsServicios::Val(GR->CellText(fila, i));
        ponerTexto(i, QString::number(cifra, 'g', 15));
        mostrarValor(i, cifra);
    }
}

} // namespace nomencla
