#include "pickers/frmListaFacPaga.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Module1.h"
#include "core/clsGrillas.h"

#include <QGridLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {
const QString formatoImporte = u"##0.00"_s;

// "##0.00": two decimals, a point, no grouping, as the grid shows its columns.
QString importe(double valor)
{
    QLocale c = QLocale::c();
    c.setNumberOptions(QLocale::OmitGroupSeparator);
    return c.toString(valor, 'f', 2);
}
} // namespace

frmListaFacPaga::frmListaFacPaga() : Formulario(u"frmListaFacPaga"_s, u"Lista de facturas canceladas"_s, true) {}

QString frmListaFacPaga::textoForma(qint64 frm)
{
    switch (frm) {
    case 0: return u"Efectivo"_s;
    case 2: return u"Cheque"_s;
    case 3: return u"Tarj. crédito"_s;
    case 4: return u"Dinero electr."_s;
    case 5: return u"Nota crédito"_s;
    case 6: return u"Depósito"_s;
    case 7: return u"Descuento"_s;
    case 8: return u"Anticipo"_s;
    case 9: return u"Tarj. débito"_s;
    case 12: return u"Cheque posfech."_s;
    default: return QString();
    }
}

void frmListaFacPaga::Disenar(QWidget* lienzo)
{
    auto* rejilla = new QGridLayout(lienzo);
    // Label1(1) "Fecha pago:", Label1(0) "Forma:", Label1(2) "Total:" beside Label2(0..2).
    const int titulo[3] = {1, 0, 2};
    const QString textos[3] = {u"Fecha pago:"_s, u"Forma:"_s, u"Total:"_s};
    for (int i = 0; i < 3; ++i) {
        auto* etiqueta = new Etiqueta(textos[i], lienzo);
        etiqueta->setObjectName(u"Label1(%1)"_s.arg(titulo[i]));
        Label2[i] = new Etiqueta(u"Label2"_s, lienzo);
        Label2[i]->setObjectName(u"Label2(%1)"_s.arg(i));
        Label2[i]->setMinimumWidth(110);
        Label2[i]->setFrameShape(QFrame::StyledPanel);
        Label2[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
        etiqueta->setBuddy(Label2[i]);
        rejilla->addWidget(etiqueta, 0, 2 * i);
        rejilla->addWidget(Label2[i], 0, 2 * i + 1);
    }
    Label2[2]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);

    GR = new Alfarje(lienzo);
    GR->setObjectName(u"GR"_s);
    GR->setFormatocolumnas(u"<FACTURA                |>CAPITAL   |INTERES  |>TOTAL       "_s);
    GR->setShowrownumbers(true);
    GR->setTotalslineshow(true);
    GR->setMinimumSize(460, 280);
    rejilla->addWidget(GR, 1, 0, 1, 6);
    GR->setFocus();
}

void frmListaFacPaga::Form_Load()
{
    for (int col = 1; col <= 3; ++col)
        GR->setColumnFormat(col, formatoImporte);
    // Each step stands alone: a failure is shown and the next step still runs,
    // so the dialog always opens with what could be read.
    MostrarCabecera();
    operacion([&] {
        M().grillas().LlenarGrilla(
            M().Conexion, GR,
            u"SELECT CONCAT(F.estab , '-' , F.pem , '-' , CAST(F.num AS CHAR)) AS numf, P.cap, P.inte, P.cap+ P.inte as tot FROM tCuePagoCli P INNER JOIN tcabfac F ON P.fac = F.cod WHERE P.cab=?"_s
            // Only the lines of this company's payment: the lines carry no company key of their own.
            u" AND P.cab IN (SELECT cod FROM tCabPagoCli WHERE id=?)"_s,
            {qint64(M().ValorDocumento), M().IdEmp}, u"numf,cap,inte,tot"_s, false, true);
    });
    // The totals line shows the sums as plain numbers.
    for (int col = 1; col <= 3; ++col)
        GR->setColumnTotalText(col, QString::number(GR->ColumnTotal(col), 'g', 15));
}

void frmListaFacPaga::MostrarCabecera()
{
    // A payment that is not found, or a field without value, shows an empty label.
    for (Etiqueta* e : Label2)
        e->clear();
    operacion([&] {
        QSqlQuery q = ejecutar(M().Conexion, u"SELECT fec, frm, cap+inte as tot FROM tCabPagoCli WHERE id=? AND cod=?"_s,
                               {M().IdEmp, qint64(M().ValorDocumento)});
        if (!q.next())
            return;
        const QDate fec = q.value(0).toDate();
        if (fec.isValid())
            Label2[0]->setText(localeEcuador().toString(fec, u"dd-MMM-yyyy"_s));
        if (!q.value(1).isNull()) {
            // A code without a text of its own keeps the designed caption.
            const QString forma = textoForma(q.value(1).toLongLong());
            Label2[1]->setText(forma.isEmpty() ? u"Label2"_s : forma);
        }
        if (!q.value(2).isNull())
            Label2[2]->setText(importe(q.value(2).toDouble()));
    });
}

} // namespace nomencla
