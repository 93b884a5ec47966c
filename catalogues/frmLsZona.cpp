#include "catalogues/frmLsZona.h"

#include "catalogues/frmLsTipoCli.h"
#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsGrillas.h"
#include "core/clsServicios.h"

#include <QApplication>
#include <QBoxLayout>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace nomencla {

const DatosListaCodificada& frmLsZona::datos()
{
    static const DatosListaCodificada d = [] {
        DatosListaCodificada x;
        x.forma = u"frmLsZona"_s;
        x.titulo = u"Administración de zónas de clientes"_s;
        x.keyPreview = true;
        x.formato = u"<ZONA                      |<DESCRIPCION DE LA CATEGORÍA                                                  |."_s;
        x.etiquetaLista = u"&Lista de categorías registradas"_s;
        x.etiquetaTexto0 = u"&Zona:"_s;
        x.etiquetaTexto1 = u"&Descripción:"_s;
        x.limite0 = 50;
        x.limite1 = 150;
        x.multilinea1 = true;
        x.bannerInicial = u"CREANDO NUEVA ZONA"_s;
        x.bannerNuevo = u"CREANDO NUEVA ZONA"_s;
        x.bannerExistente = u"MODIFICANDO ZONA EXISTENTE"_s;
        x.campoConfirmar = 0;
        x.lista = {u"SELECT zon,des,cod FROM mZonaClie WHERE  id=? AND  est=1 ORDER BY zon"_s, {Valor::Empresa}};
        x.campos = u"zon,des,cod"_s;
        x.clave = {u"SELECT MAX(cod) AS mco FROM mZonaClie WHERE id=?"_s, {Valor::Empresa}};
        x.insertar = {u"INSERT INTO mZonaClie (ID,cod,zon,des,est) VALUES (?,?,?,?,1)"_s,
                      {Valor::Empresa, Valor::V2, Valor::V0, Valor::V1}};
        x.actualizar = {u"UPDATE mZonaClie SET zon=?, des=? WHERE cod=? AND id=?"_s,
                        {Valor::V0, Valor::V1, Valor::V2, Valor::Empresa}};
        // The zone's key is bound as the number it is.
        x.referencia = {u"SELECT EXISTS(SELECT cod FROM mCliente WHERE  id=? AND zon=?) AS tot"_s, {Valor::Empresa, Valor::V2}};
        x.borrar = {u"UPDATE mZonaClie SET est=0 WHERE cod=? AND id=?"_s, {Valor::V2, Valor::Empresa}};
        x.msgVacio = u"Debe especificar el nombre de la zona!"_s;
        x.msgDuplicado = u"La zona ya se encuentra registrada en la lista!"_s;
        x.msgReferencia = u"No se puede quitar la zona ''%1'' debido a que se encuentra asignada a uno o mas clientes!"_s;
        x.msgConfirmar = u"Está seguro que desea quitar la zona ''%1'' de la base de datos?"_s;
        return x;
    }();
    return d;
}

namespace {

// The places: list, a pending place (no ordinal), a new place of a stored
// zone, a rename, the customers' place, the customers of a place, a removal.
const auto sqlLugares = u"SELECT lug,cod FROM mZonaLugar WHERE  id=? AND EST=1 AND zon=? order by lug"_s;
const auto sqlLugarPendiente = u"INSERT INTO mZonaLugar (ID,zon,lug,est) VALUES (?,?,?,1)"_s;
const auto sqlLugarNuevo = u"INSERT INTO mZonaLugar (id,zon,lug,est,ord) VALUES (?,?,?,1,?)"_s;
const auto sqlLugarActualizar = u"UPDATE mZonaLugar SET lug=?, ord=? WHERE cod=? AND id=?"_s;
const auto sqlLugarNombre = u"SELECT lug FROM mZonaLugar WHERE cod=? AND id=? FOR UPDATE"_s;
const auto sqlLugarClientes = u"UPDATE mCliente SET lug=? WHERE  id=? AND lug=? and zon=?"_s;
const auto sqlClientesDelLugar = u"SELECT EXISTS(SELECT cod FROM mCliente WHERE  id=? AND lug=?) AS tot"_s;
const auto sqlLugarQuitar = u"UPDATE mZonalugar SET est=0 WHERE cod=? AND id=?"_s;

// The numeric value of a key cell: a stored place's cod, 0 for a pending row.
qint32 claveDe(const QString& celda)
{
    return qint32(clsServicios::Val(celda));
}

// Repainting of a grid is off while it lives, and back on however the block ends.
class SinRepintar {
public:
    explicit SinRepintar(Alfarje* g) : g_(g) { g_->setRedraw(false); }
    ~SinRepintar() { g_->setRedraw(true); }
    SinRepintar(const SinRepintar&) = delete;
    SinRepintar& operator=(const SinRepintar&) = delete;

private:
    Alfarje* g_;
};

} // namespace

frmLsZona::frmLsZona() : ListaCodificada(datos()) {}

const frmLsZona::SentenciasLugar& frmLsZona::lugares()
{
    static const SentenciasLugar s{sqlLugarActualizar, sqlLugarClientes};
    return s;
}

void frmLsZona::DisenarExtra(QWidget* lienzo, QGridLayout*, QBoxLayout* cuerpo)
{
    auto* etiquetaLugar = new Etiqueta(u"&Lugares asociados a esta zona"_s, lienzo);
    etiquetaLugar->setObjectName(u"Label1(3)"_s);
    Tx2_ = new CajaTexto(lienzo, 50);
    Tx2_->setObjectName(u"Tx(2)"_s);
    etiquetaLugar->setBuddy(Tx2_);

    auto* etiquetaOrdinal = new Etiqueta(u"&Ordinal:"_s, lienzo);
    etiquetaOrdinal->setObjectName(u"Label1(4)"_s);
    Tx3_ = new CajaTexto(lienzo, 3);
    Tx3_->setObjectName(u"Tx(3)"_s);
    Tx3_->setSoloNumero(0);
    Tx3_->setAlignment(Qt::AlignCenter);
    Tx3_->setText(u"1"_s);
    Tx3_->setFixedWidth(Tx3_->fontMetrics().horizontalAdvance(u"0"_s) * 6 + 12);
    etiquetaOrdinal->setBuddy(Tx3_);

    QStyle* estilo = lienzo->style();
    Bt5_ = new Pulsante(QString(), lienzo, estilo->standardIcon(QStyle::SP_DialogSaveButton));
    Bt5_->setObjectName(u"Bt(5)"_s);
    Bt5_->setToolTip(u"Click para guardar el lugar"_s);
    Bt5_->setAccessibleName(u"Guardar lugar"_s);
    Bt4_ = new Pulsante(QString(), lienzo, estilo->standardIcon(QStyle::SP_TrashIcon));
    Bt4_->setObjectName(u"Bt(4)"_s);
    Bt4_->setToolTip(u"Click para eliminar la fila seleccionada"_s);
    Bt4_->setAccessibleName(u"Quitar lugar"_s);

    GR2 = new Alfarje(lienzo);
    GR2->setObjectName(u"GR2"_s);
    GR2->setFormatocolumnas(u"<ZONA                                            |xxxx."_s);
    GR2->setShowrownumbers(false);
    GR2->setTotalslineshow(false);
    GR2->setMinimumSize(520, 150);
    GR2->setAccessibleName(u"Lugares de la zona"_s);

    auto* fila = new QHBoxLayout;
    fila->addWidget(Tx2_, 1);
    fila->addWidget(etiquetaOrdinal);
    fila->addWidget(Tx3_);
    fila->addWidget(Bt5_);
    fila->addWidget(Bt4_);
    cuerpo->addWidget(etiquetaLugar);
    cuerpo->addLayout(fila);
    cuerpo->addWidget(GR2);

    connect(Bt4_, &QPushButton::clicked, this, &frmLsZona::QuitarLugar);
    connect(Bt5_, &QPushButton::clicked, this, &frmLsZona::GuardarLugar);
    buscarAlTeclear(Tx2_, GR2);
    connect(Tx2_, &CajaTexto::Change, this, &frmLsZona::Tx2_Change);
    connect(Tx2_, &CajaTexto::KeyPress, this, &frmLsZona::Tx2_KeyPress);
    connect(Tx3_, &CajaTexto::KeyPress, this, &frmLsZona::Tx3_KeyPress);
    connect(GR2, &Alfarje::RowChange, this, &frmLsZona::GR2_RowChange);
    connect(GR2, &Alfarje::GotFocus, this, &frmLsZona::GR2_RowChange);
}

void frmLsZona::Form_Load()
{
    CodigoLugar = 0;
    ListaCodificada::Form_Load();
    // Tab order: the zone's fields, the place's fields and its buttons, the
    // places, then the zone's buttons and the zones.
    setTabOrder(Tx3_, Bt5_);
    setTabOrder(Bt5_, Bt4_);
    setTabOrder(Bt4_, GR2);
    setTabOrder(GR2, ctl<QWidget>(u"Bt(0)"_s));
}

void frmLsZona::CargarLugares()
{
    M().grillas().LlenarGrilla(M().Conexion, GR2, sqlLugares, {M().IdEmp, qint64(CodigoActual)}, u"lug,cod"_s,
                               false, true);
}

void frmLsZona::olvidarLugar()
{
    Tx2_->setText(QString());
    Tx2_->setTag(QString());
    CodigoLugar = 0;
}

void frmLsZona::NuevoExtra()
{
    olvidarLugar();
    Tx3_->setText(u"1"_s);
    GR2->ClearRows(); // pending rows are dropped
}

void frmLsZona::despuesDeMostrar()
{
    // A place picked in the former zone leaves the fields, so that it is never
    // written under the zone picked now.
    olvidarLugar();
    operacion([this] { CargarLugares(); }); // pending rows are dropped here too
}

void frmLsZona::guardarExtra()
{
    // The pending places go in the zone's transaction: the zone with all its
    // places, or nothing.
    QSqlDatabase& db = M().Conexion;
    for (qint32 f = 0; f < GR2->RowCount(); ++f)
        if (claveDe(GR2->CellText(f, 1)) == 0)
            ejecutar(db, sqlLugarPendiente, {M().IdEmp, qint64(CodigoActual), GR2->CellText(f, 0)});
}

void frmLsZona::Tx2_Change()
{
    if (Tx2_->text().trimmed().isEmpty())
        CodigoLugar = 0;
}

void frmLsZona::Tx2_KeyPress(int& KeyAscii)
{
    if (KeyAscii == vbKeyReturn) {
        Tx3_->setFocus();
        KeyAscii = 0;
    }
}

void frmLsZona::Tx3_KeyPress(int& KeyAscii)
{
    if (KeyAscii == vbKeyReturn)
        GuardarLugar();
    // Only digits and Backspace reach the box (Tab still moves on).
    if (KeyAscii == 9)
        return;
    if (!(KeyAscii >= u'0' && KeyAscii <= u'9') && KeyAscii != vbKeyBack)
        KeyAscii = 0;
}

void frmLsZona::GR2_RowChange()
{
    // Only the user's own move in the places picks one: a move by the search
    // of Tx(2) does nothing.
    if (QApplication::focusWidget() != GR2)
        return;
    const qint32 fila = GR2->Row();
    if (fila < 0)
        return;
    // Name, key and old name of the picked row, which stays selected.
    sinBuscar([&] { Tx2_->setText(GR2->CellText(fila, 0)); });
    CodigoLugar = claveDe(GR2->CellText(fila, 1));
    Tx2_->setTag(GR2->CellText(fila, 0));
    GR2->setFocus();
}

void frmLsZona::GuardarLugar()
{
    const QString t2 = Tx2_->text().trimmed();
    if (t2.size() <= 1) { // one character is refused like none
        MsgBox(this, u"Debe especificar el nombre del lugar!"_s, estilo::Critico, u"Error"_s);
        Tx2_->setFocus();
        return;
    }
    if (GR2->FindRow(t2, 0, 0, false) >= 0) {
        MsgBox(this, u"El lugar ya se encuentra registrado en la lista!"_s, estilo::Critico, u"Aviso"_s);
        Tx2_->setText(QString());
        Tx2_->setFocus();
        return;
    }
    const double ordinal = clsServicios::Val(Tx3_->text());
    QSqlDatabase& db = M().Conexion;
    if (CodigoLugar < 1) {
        if (CodigoActual < 1) {
            GR2->AddItem(QStringList{t2, u"0"_s}); // waits for the zone's save
        } else {
            bool hecho = false;
            {
                SinRepintar sinRepintar(GR2);
                hecho = operacion([&] {
                    const QSqlQuery q =
                        ejecutar(db, sqlLugarNuevo, {M().IdEmp, qint64(CodigoActual), t2, ordinal});
                    GR2->AddItem(QStringList{t2, q.lastInsertId().toString()});
                });
            }
            if (!hecho)
                return;
            M().HuboCambios = true;
            MsgBox(this, u"El lugar asociado a la zona se ha registrado en la base de datos!"_s,
                   estilo::Informacion, u"Lugar agregado"_s);
        }
    } else {
        // The place and its customers in one go: both renamed, or neither.
        const QString anterior = Tx2_->Tag().trimmed();
        if (!operacion([&] {
                Transaccion transaccion(db);
                // The customers carry the name the place has now: another
                // clerk may have renamed it since this one picked it.
                const QVariant nombre = consultarValor(db, sqlLugarNombre, {qint64(CodigoLugar), M().IdEmp});
                ejecutar(db, sqlLugarActualizar, {t2, ordinal, qint64(CodigoLugar), M().IdEmp});
                ejecutar(db, sqlLugarClientes,
                         {t2, M().IdEmp, nombre.isNull() ? anterior : nombre.toString(), qint64(CodigoActual)});
                transaccion.confirmar();
            }))
            return;
        M().HuboCambios = true;
        if (!operacion([this] { CargarLugares(); }))
            return;
        MsgBox(this, u"La información se ha guardado con éxito en la base de datos!"_s, estilo::Informacion,
               u"Listo"_s);
    }
    M().HuboCambios = true;
    Tx2_->setText(QString()); // also clears CodigoLugar
    Tx2_->setFocus();
}

void frmLsZona::QuitarLugar()
{
    const qint32 fila = GR2->Row();
    if (fila < 0)
        return;
    // The place removed is the one the question names: the selected row's.
    const QString nombre = GR2->CellText(fila, 0);
    const qint32 clave = claveDe(GR2->CellText(fila, 1));
    if (clave == 0) { // a pending row: nothing was written
        GR2->RemoveItem();
        return;
    }
    QSqlDatabase& db = M().Conexion;
    QVariant usos;
    if (!operacion([&] { usos = M().servicios().ConsultarValor(db, sqlClientesDelLugar, {M().IdEmp, nombre}); }))
        return;
    if (usos.toLongLong() > 0) {
        MsgBox(this,
               u"No se puede quitar el lugar ''%1'' debido a que se encuentra asignado a uno o más clientes!"_s.arg(nombre),
               estilo::Exclamacion, u"AVISO"_s);
        return;
    }
    if (MsgBox(this, u"Está seguro que desea quitar el lugar ''%1'' de la base de datos?"_s.arg(nombre),
               estilo::ExclamacionSiNo, u"CONFIRME"_s)
        != vbYes)
        return;
    if (!operacion([&] { ejecutar(db, sqlLugarQuitar, {qint64(clave), M().IdEmp}); }))
        return;
    M().HuboCambios = true;
    // The removed place leaves the fields too, so no later save renames it.
    if (clave == CodigoLugar)
        olvidarLugar();
    if (!operacion([this] { CargarLugares(); }))
        return;
    MsgBox(this, u"La operación se realizó correctamente!"_s, estilo::Informacion, u"Listo"_s);
}

} // namespace nomencla
