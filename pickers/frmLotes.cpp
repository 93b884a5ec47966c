#include "pickers/frmLotes.h"

#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsServicios.h"
#include "catalogues/frmLsPaises.h"

#include <QDate>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QRegularExpression>
#include <QStyle>
#include <cmath>
#include <limits>
#include <optional>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {
const QString sqlPaises = u"SELECT nom,cod from lsPaises WHERE  id=? ORDER by nom"_s;
const QString sqlPaisesOtraVez = u"SELECT nom,cod from lsPaises WHERE  id=? order by nom"_s;
const QString formatoFecha = u"dd-MMM-yyyy"_s;

// The quantity as the box's text gives it: its leading number, rounded to a
// whole number, 0 without one; nothing when it lies beyond a Long.
std::optional<qint32> cantidadDeTexto(const QString& texto)
{
    // The leading number, with a point as decimal mark (a pasted text may bring one).
    static const QRegularExpression numero(u"^\\s*([+-]?(\\d+(\\.\\d*)?|\\.\\d+))"_s);
    const QRegularExpressionMatch m = numero.match(texto);
    if (!m.hasMatch())
        return 0;
    const double v = std::round(m.captured(1).toDouble()); // halves away from zero
    if (v > double(std::numeric_limits<qint32>::max()) || v < double(std::numeric_limits<qint32>::min()))
        return std::nullopt;
    return qint32(v);
}
} // namespace

frmLotes::frmLotes() : Formulario(u"frmLotes"_s, u"Información de lotes"_s, false) {}

void frmLotes::Disenar(QWidget* lienzo)
{
    auto* rejilla = new QGridLayout(lienzo);
    const QString rotulos[] = {u"&Lote No:"_s,         u"Fecha &caducidad:"_s, u"Reg. &sanitario:"_s,
                               u"Fecha &fabricación:"_s, u"&País origen:"_s,     u"C&antidad:"_s};

    Text1[0] = new CajaTexto(lienzo, 15);
    DT[0] = new SelectorFecha(formatoFecha, lienzo);
    Text1[1] = new CajaTexto(lienzo, 20);
    DT[1] = new SelectorFecha(formatoFecha, lienzo);
    Cmb = new Combo(lienzo);
    Text1[2] = new CajaTexto(lienzo, 15);
    Text1[2]->setAlignment(Qt::AlignCenter);
    for (int i = 0; i < 3; ++i)
        Text1[i]->setObjectName(u"Text1(%1)"_s.arg(i));
    for (int i = 0; i < 2; ++i)
        DT[i]->setObjectName(u"DT(%1)"_s.arg(i));
    Cmb->setObjectName(u"Cmb"_s);
    Cmb->setMinimumContentsLength(20);

    auto* paises = new Pulsante(QString(), lienzo, style()->standardIcon(QStyle::SP_FileDialogDetailedView));
    paises->setObjectName(u"Bt(2)"_s);
    paises->setToolTip(u"Lista de países"_s);
    paises->setAccessibleName(u"Lista de países"_s);
    auto* aceptar = new Pulsante(u"Aceptar"_s, lienzo);
    aceptar->setObjectName(u"Bt(1)"_s);
    auto* cancelar = new Pulsante(u"&Cancelar"_s, lienzo);
    cancelar->setObjectName(u"Bt(0)"_s);

    QWidget* campos[] = {Text1[0], DT[0], Text1[1], DT[1], Cmb, Text1[2]};
    for (int i = 0; i < 6; ++i) {
        auto* etiqueta = new Etiqueta(rotulos[i], lienzo);
        etiqueta->setObjectName(u"Label1(%1)"_s.arg(i));
        etiqueta->setBuddy(campos[i]);
        rejilla->addWidget(etiqueta, i, 0);
        rejilla->addWidget(campos[i], i, 1, 1, i == 4 ? 1 : 2);
    }
    rejilla->addWidget(paises, 4, 2);

    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(aceptar);
    botones->addWidget(cancelar);
    rejilla->addLayout(botones, 6, 0, 1, 3);

    QWidget* orden[] = {Text1[0], DT[0], Text1[1], DT[1], Cmb, paises, Text1[2], aceptar, cancelar};
    for (size_t i = 1; i < std::size(orden); ++i)
        setTabOrder(orden[i - 1], orden[i]);

    connect(cancelar, &QPushButton::clicked, this, [this] { Bt_Click(0); });
    connect(aceptar, &QPushButton::clicked, this, [this] { Bt_Click(1); });
    connect(paises, &QPushButton::clicked, this, [this] { Bt_Click(2); });
    // The quantity is a whole number: no decimal mark, no sign.
    Text1[2]->setSoloNumero(0);
    connect(Text1[2], &CajaTexto::KeyPress, this, [this](int& KeyAscii) {
        KeyAscii = M().servicios().FiltrarTecla(Text1[2], KeyAscii, 0, 0, 100, 0);
    });
    Text1[0]->setFocus();
}

void frmLotes::Form_Load()
{
    // Cleared before anything can fail, so a cancel never hands back the
    // previous lot. The dates stay as the last accepted lot left them.
    InfoLotes& lote = M().LoteCapturado;
    lote.Lote.clear();
    lote.PaisOrigen.clear();
    lote.RegistroSanitario.clear();
    lote.Cantidad = 0;

    DT[0]->setValue(QDate::currentDate());
    DT[1]->setValue(QDate::currentDate());
    LlenarPaises(sqlPaises);
}

void frmLotes::LlenarPaises(const QString& sql)
{
    operacion([&] { M().servicios().LlenarCombo(M().Conexion, sql, {M().IdEmp}, Cmb, u"nom"_s, QString()); });
}

void frmLotes::Bt_Click(int Index)
{
    switch (Index) {
    case 0: Unload(); break;
    case 1: Aceptar(); break;
    case 2: {
        // The country list's load clears HuboCambios; cleared here too, so
        // only a change made there refills the combo.
        M().HuboCambios = false;
        M().instancia<frmLsPaises>().Show(this);
        if (M().HuboCambios)
            LlenarPaises(sqlPaisesOtraVez);
        break;
    }
    default: break;
    }
}

void frmLotes::Aceptar()
{
    const QString lote = Text1[0]->text().trimmed();
    if (lote.isEmpty()) {
        MsgBox(this,
               u"Debe especificar el lote, si el producto no tiene lote pude colacar un par de guiones '--' en su lugar!"_s,
               estilo::Critico, u"Error"_s);
        Text1[0]->setFocus();
        return;
    }
    if (Cmb->Text().isEmpty()) {
        MsgBox(this, u"Debe especificar el país de origen!"_s, estilo::Critico, u"Error"_s);
        Cmb->setFocus();
        return;
    }
    // A quantity beyond a Long is refused before anything is stored.
    const std::optional<qint32> cantidad = cantidadDeTexto(Text1[2]->text());
    if (!cantidad) {
        MsgBox(this, u"La cantidad es demasiado grande, no puede pasar de %1!"_s.arg(std::numeric_limits<qint32>::max()),
               estilo::Critico, u"Error"_s);
        Text1[2]->setFocus();
        Text1[2]->selectAll();
        return;
    }
    InfoLotes& r = M().LoteCapturado;
    r.Lote = lote;
    r.FechaCaducidad = DT[0]->Value();
    r.RegistroSanitario = Text1[1]->text().trimmed();
    r.FechaFabricacion = DT[1]->Value();
    r.PaisOrigen = Cmb->Text();
    r.Cantidad = *cantidad;
    Unload();
}

} // namespace nomencla
