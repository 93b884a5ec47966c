#include "pickers/frmImpresion.h"

#include "core/Controles.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsServicios.h"

#include <QHBoxLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

frmImpresion::frmImpresion() : Formulario(u"frmImpresion"_s, u"Modelo de impresión"_s, true) {}

qint32 frmImpresion::claseDocumento(qint32 valor)
{
    switch (valor) {
    case impFactura:
    case impEntregaFacturar:
    case impNotaEntrega:
    case impRetencion:
    case impNotaCredito:
    case impRecibo:
    case impProforma:
    case impGuia:
        return valor;
    default:
        return impFactura;
    }
}

void frmImpresion::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QHBoxLayout(lienzo);
    Cmb = new Combo(lienzo);
    Cmb->setObjectName(u"Cmb"_s);
    Cmb->setMinimumWidth(260);
    Cmb->setAccessibleName(u"Modelo de impresión"_s);
    auto* seleccionar = new Pulsante(u"   &Seleccionar"_s, lienzo);
    seleccionar->setObjectName(u"Btn(0)"_s);
    disposicion->addWidget(Cmb, 1);
    disposicion->addWidget(seleccionar);
    setTabOrder(Cmb, seleccionar);
    connect(seleccionar, &QPushButton::clicked, this, [this] {
        int tecla = vbKeyReturn;
        Form_KeyPress(tecla);
    });
    Cmb->setFocus();
}

void frmImpresion::Form_Load()
{
    const qint32 clase = claseDocumento(M().ValorDocumento);
    operacion([&] {
        M().servicios().LlenarCombo(M().Conexion, u"SELECT nom, cod FROM disenfacturacab WHERE  id=? AND doc = ? ORDER BY nom"_s,
                                    {M().IdEmp, qint64(clase)}, Cmb, u"nom"_s, u"cod"_s, true, true, QString());
    });
    M().ModeloImpresion = 0;
}

void frmImpresion::Form_Activate()
{
    if (Cmb->ListCount() == 0)
        Unload();
}

void frmImpresion::Form_KeyPress(int& KeyAscii)
{
    if (KeyAscii != vbKeyReturn && KeyAscii != vbKeyEscape)
        return;
    KeyAscii = 0;
    // Esc takes the model shown too: the host asked for one.
    const int i = Cmb->ListIndex();
    M().ModeloImpresion = i >= 0 ? qint32(Cmb->ItemData(i)) : 0;
    Unload();
}

} // namespace nomencla
