#include "pickers/frmListaFechasIVA.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsGrillas.h"
#include "core/clsServicios.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {
const QString formatoFecha = u"ddd. dd-MMM-yyyy"_s;
}

frmListaFechasIVA::frmListaFechasIVA() : Formulario(u"frmListaFechasIVA"_s, u"Fechas para IVA diferenciado"_s, false) {}

frmListaFechasIVA::~frmListaFechasIVA() = default;

void frmListaFechasIVA::Disenar(QWidget* lienzo)
{
    auto* rejilla = new QGridLayout(lienzo);

    auto* etiquetaFecha = new Etiqueta(u"&Fecha:"_s, lienzo);
    etiquetaFecha->setObjectName(u"Label1(0)"_s);
    DT = new SelectorFecha(formatoFecha, lienzo);
    DT->setObjectName(u"DT"_s);
    DT->setValue(QDate(2023, 2, 17));
    etiquetaFecha->setBuddy(DT);

    auto* agregar = new Pulsante(u"Agregar"_s, lienzo);
    agregar->setObjectName(u"Bt(0)"_s);
    auto* quitar = new Pulsante(QString(), lienzo, style()->standardIcon(QStyle::SP_TrashIcon));
    quitar->setObjectName(u"Bt(2)"_s);
    quitar->setToolTip(u"Quitar la fecha seleccionada"_s);
    quitar->setAccessibleName(u"Quitar"_s);

    auto* etiquetaLista = new Etiqueta(u"Lista de fechas registradas"_s, lienzo);
    etiquetaLista->setObjectName(u"Label1(1)"_s);
    GR = new Alfarje(lienzo);
    GR->setObjectName(u"GR"_s);
    GR->setFormatocolumnas(u"<F E C H A    F E R I A D O    "_s);
    GR->setShowrownumbers(true);
    GR->setSearchcolumn(-1);
    GR->setTotalslineshow(false);
    GR->setMinimumSize(300, 300);
    etiquetaLista->setBuddy(GR);

    auto* fila = new QHBoxLayout;
    fila->addWidget(etiquetaFecha);
    fila->addWidget(DT, 1);
    fila->addWidget(agregar);
    fila->addWidget(quitar);
    rejilla->addLayout(fila, 0, 0);
    rejilla->addWidget(etiquetaLista, 1, 0);
    rejilla->addWidget(GR, 2, 0);

    setTabOrder(DT, agregar);
    setTabOrder(agregar, quitar);
    setTabOrder(quitar, GR);

    connect(agregar, &QPushButton::clicked, this, [this] { Bt_Click(0); });
    connect(quitar, &QPushButton::clicked, this, [this] { Bt_Click(2); });
    connect(DT, &SelectorFecha::Change, this, [this] { DT_Change(); });
    connect(DT, &SelectorFecha::CallbackKeyDown, this, [this] { DT_Change(); });
    DT->setFocus();
}

void frmListaFechasIVA::Form_Load()
{
    GR->setColumnFormat(0, formatoFecha);
    if (!grillas_)
        grillas_ = std::make_unique<clsGrillas>();
    operacion([&] {
        grillas_->LlenarGrilla(M().Conexion, GR,
                               // This year's dates as a range on fec, so the index serves it.
                               u"SELECT fec FROM FechaIVAdif WHERE  id=? and fec>=MAKEDATE(year(curdate()),1) "
                               u"and fec<MAKEDATE(year(curdate())+1,1) ORDER BY fec"_s,
                               {M().IdEmp}, u"fec"_s, false, true);
    });
    M().HuboCambios = false;
}

qint32 frmListaFechasIVA::filaDeFecha(const QDate& fecha) const
{
    // Dates are compared as dates: a cell is found whatever text form it holds.
    const qint32 fila = GR->FindRow(M().serviciosApp().FechaSql(fecha.toString(Qt::ISODate)), 0, 0, false);
    if (fila >= 0)
        return fila;
    for (qint32 i = 0; i < GR->RowCount(); ++i)
        if (clsServicios::fechaDeTexto(GR->CellText(i, 0)) == fecha)
            return i;
    return -1;
}

void frmListaFechasIVA::Bt_Click(int Index)
{
    if (Index == 0)
        Guardar();
    else if (Index == 2)
        Quitar();
}

void frmListaFechasIVA::DT_Change()
{
    GR->setRow(filaDeFecha(DT->Value()));
}

void frmListaFechasIVA::Guardar()
{
    const QDate fecha = DT->Value();
    if (filaDeFecha(fecha) >= 0) {
        MsgBox(this, u"La fecha que intenta guardar ya está registrada en la base de datos!"_s, estilo::Exclamacion,
               u"AVISO"_s);
        return;
    }
    if (!operacion([&] {
            ejecutar(M().Conexion, u"INSERT INTO FechaIVAdif (id,fec,iva) VALUES (?,?,8)"_s, {M().IdEmp, fecha});
        }))
        return;
    // The new date goes to the end of the list, as stored text.
    GR->AddItem(M().serviciosApp().FechaSql(fecha.toString(Qt::ISODate)));
    DT->setFocus();
    M().HuboCambios = true;
    MsgBox(this, u"La información se ha guardado correctamente!"_s, estilo::Informacion, u"Listo"_s);
}

void frmListaFechasIVA::Quitar()
{
    if (GR->Row() < 0)
        return;
    const QDate fecha = clsServicios::fechaDeTexto(GR->CellText());
    if (!fecha.isValid())
        return; // a cell that holds no date cannot be addressed
    // The question names the date as the list shows it.
    const QString mostrada = localeEcuador().toString(fecha, formatoFecha);
    if (MsgBox(this, u"Está seguro que desea quitar la fecha ''%1'' de la base de datos?"_s.arg(mostrada),
               estilo::ExclamacionSiNo, u"CONFIRME"_s)
        != vbYes)
        return;
    if (!operacion([&] {
            ejecutar(M().Conexion, u"DELETE FROM FechaIVAdif WHERE  id=? AND  fec=?"_s, {M().IdEmp, fecha});
        }))
        return;
    GR->RemoveItem();
    M().HuboCambios = true;
    MsgBox(this, u"La operación se realizó correctamente!"_s, estilo::Informacion, u"Listo"_s);
    DT->setFocus();
}

} // namespace nomencla
