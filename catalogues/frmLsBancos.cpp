#include "catalogues/frmLsBancos.h"

#include "core/Alfarje.h"
#include "core/Controles.h"
#include "core/Module1.h"
#include "core/clsServicios.h"

#include <QFrame>
#include <QGridLayout>
#include <QLayout>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaNombrada& frmLsBancos::datos()
{
    static const DatosListaNombrada d = [] {
        DatosListaNombrada x;
        x.forma = u"frmLsBancos"_s;
        x.titulo = u"Administracion de bancos"_s;
        x.formato = u"NOMBRE DEL BANCO O COOPERATIVA |T/C   |.|.|."_s;
        x.etiquetaTexto = u"&Banco:"_s;
        x.etiquetaLista = u"Lista de bancos registrados"_s;
        x.keyPreview = true;
        x.largoMinimo = 6;
        x.columnaClave = 2;
        // V2 the card flag, V3 and V4 the commissions.
        x.lista = {u"SELECT nom,tar,cod,cor,dife FROM lsBancos WHERE  id=? AND  est=1 ORDER BY nom"_s, {Valor::Empresa}};
        x.campos = u"nom,tar,cod,cor,dife"_s;
        x.insertar = {u"INSERT INTO lsBancos (id,nom,est,tar,cor,dife) VALUES (?,?,1,?,?,?)"_s,
                      {Valor::Empresa, Valor::V0, Valor::V2, Valor::V3, Valor::V4}};
        x.actualizar = {u"UPDATE lsBancos SET nom=?, est=1, tar=?, cor=?, dife=? WHERE cod=? AND id=?"_s,
                        {Valor::V0, Valor::V2, Valor::V3, Valor::V4, Valor::V1, Valor::Empresa}};
        x.quitar = {u"UPDATE lsBancos SET EST=0 WHERE cod=? AND id=?"_s, {Valor::V1, Valor::Empresa}};
        x.msgDuplicado = u"El banco ya se encuentra registrado en la lista!"_s;
        x.msgConfirmar = u"Está seguro que desea eliminar ''%1'' de la lista de bancos registrados en el sistema?"_s;
        return x;
    }();
    return d;
}

frmLsBancos::frmLsBancos() : ListaNombrada(datos()) {}

QWidget* frmLsBancos::disenarCampos(QGridLayout* campos, int fila, QWidget* anterior)
{
    QWidget* marco = campos->parentWidget();
    // Designed ticked, with the commissions in sight: the load unticks it.
    Check1 = new Casilla(u"Administra tarjetas de crédito"_s, marco);
    Check1->setObjectName(u"Check1"_s);
    Check1->setValue(1);
    campos->addWidget(Check1, fila, 1, 1, 3);
    setTabOrder(anterior, Check1);
    anterior = Check1;

    const QString textos[2] = {u"Comisión en corriente:"_s, u"Comisión en diferido:"_s};
    for (int i = 0; i < 2; ++i) {
        auto* etiqueta = new Etiqueta(textos[i], marco);
        etiqueta->setObjectName(u"Label1(%1)"_s.arg(2 + i));
        Nm[i] = new CajaTexto(marco, 8); // 99999.99 at most, as typed
        Nm[i]->setObjectName(u"Nm(%1)"_s.arg(i));
        Nm[i]->setSoloNumero(2);
        Nm[i]->setAlignment(Qt::AlignCenter);
        Nm[i]->setMaximumWidth(90);
        etiqueta->setBuddy(Nm[i]);
        auto* porCiento = new Etiqueta(u"%"_s, marco);
        porCiento->setObjectName(u"Label1(%1)"_s.arg(4 + i));
        campos->addWidget(etiqueta, fila + 1 + i, 0);
        campos->addWidget(Nm[i], fila + 1 + i, 1);
        campos->addWidget(porCiento, fila + 1 + i, 2);
        comisiones_[3 * i] = etiqueta;
        comisiones_[3 * i + 1] = Nm[i];
        comisiones_[3 * i + 2] = porCiento;
        setTabOrder(anterior, Nm[i]);
        anterior = Nm[i];
        CajaTexto* caja = Nm[i];
        connect(caja, &CajaTexto::KeyPress, this, [caja](int& KeyAscii) {
            if (KeyAscii != vbKeyBack)
                KeyAscii = M().servicios().FiltrarTecla(caja, KeyAscii, 2, 0, 5, 0);
        });
    }
    // The captions' column keeps the width of the longest one in both layouts,
    // so that only the height changes.
    int ancho = 0;
    for (int i = 0; i < campos->count(); ++i)
        if (auto* e = qobject_cast<Etiqueta*>(campos->itemAt(i)->widget()))
            ancho = std::max(ancho, e->sizeHint().width());
    campos->setColumnMinimumWidth(0, ancho);
    campos->setColumnStretch(3, 1);
    connect(Check1, &Casilla::Click, this, [this] { Check1_Click(); });
    return anterior;
}

void frmLsBancos::Disenar(QWidget* lienzo)
{
    ListaNombrada::Disenar(lienzo);
    marcoCampos->setObjectName(u"Shape1(0)"_s);
    panelLista->setObjectName(u"P1"_s);
    marcoLista->setObjectName(u"Shape1(1)"_s);
}

void frmLsBancos::Form_Load()
{
    GR->setColumnKind(1, 3);
    ListaNombrada::Form_Load();
    Check1->setValue(0);
}

// The tall layout with the commissions while Check1 is ticked, else the short
// one; the list below moves with the frame and the form follows its content.
void frmLsBancos::Check1_Click()
{
    const bool alto = Check1->Value() == 1;
    for (QWidget* w : comisiones_)
        w->setVisible(alto);
    // The form takes the size of the new layout at once.
    for (QWidget* w = marcoCampos; w != nullptr; w = w == this ? nullptr : w->parentWidget())
        if (w->layout())
            w->layout()->invalidate();
    layout()->activate();
}

void frmLsBancos::Bt_Click(int Index)
{
    ListaNombrada::Bt_Click(Index);
    if (Index == 0)
        Check1->setValue(0); // however the save ended
}

void frmLsBancos::mostrarCampos(int fila)
{
    Check1->setValue(clsServicios::Val(GR->CellText(fila, 1)) != 0 ? 1 : 0);
    Nm[0]->setText(GR->CellText(fila, 3));
    Nm[1]->setText(GR->CellText(fila, 4));
    tarjeta_.mostrar(QString::number(Check1->Value()), qint64(GR->CellValue(fila, 1)));
    for (int i = 0; i < 2; ++i)
        comision_[i].mostrar(Nm[i]->text(), GR->CellValue(fila, 3 + i));
}

QVariantList frmLsBancos::valoresPropios() const
{
    // Read whether the commission boxes are in sight or not. The picked bank
    // keeps what the clerk left as shown (a card flag stored as 2, say).
    QVariantList v{qint64(Check1->Value()), clsServicios::Val(Nm[0]->text()), clsServicios::Val(Nm[1]->text())};
    if (CodigoActual > 0) {
        v[0] = tarjeta_.valor(QString::number(Check1->Value()), v[0]);
        for (int i = 0; i < 2; ++i)
            v[1 + i] = comision_[i].valor(Nm[i]->text(), v[1 + i]);
    }
    return v;
}

} // namespace nomencla
