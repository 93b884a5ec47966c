#include "company/frmSubProveedor.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/Ruc.h"

#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

frmSubProveedor::frmSubProveedor()
    : EstructuraEmpresa({u"frmSubProveedor"_s, u"Administración de subproveedores"_s, u"CREANDO NUEVO REGISTRO"_s,
                         u"MODIFICANDO REGISTRO EXISTENTE"_s, u"UPDATE SubProveedor SET est=0 WHERE cod=? AND id=?"_s,
                         u"al subproveedor"_s, 3,
                         u"SELECT cin,ruc,raz,dir,cod FROM SubProveedor WHERE  id=? AND est<>0 ORDER BY cin"_s,
                         u"cin,ruc,raz,dir,cod"_s})
{
}

void frmSubProveedor::Disenar(QWidget* lienzo)
{
    Tx.clear();
    auto* raiz = new QVBoxLayout(lienzo);

    for (int i = 0; i < 2; ++i) {
        Lbl[i] = new Etiqueta(QString(), lienzo);
        Lbl[i]->setObjectName(u"Lbl(%1)"_s.arg(i));
        Lbl[i]->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    QFont letra = Lbl[0]->font();
    letra.setBold(true);
    letra.setPointSizeF(letra.pointSizeF() * 1.2);
    Lbl[0]->setFont(letra);

    auto* tx0 = crearTx(lienzo, 0, 13, true);
    auto* tx1 = crearTx(lienzo, 1, 13);
    auto* tx2 = crearTx(lienzo, 2, 100);
    auto* tx3 = crearTx(lienzo, 3, 100);

    auto* campos = new QGridLayout;
    campos->addWidget(crearEtiqueta(lienzo, 2, u"&RUC:"_s, tx1), 0, 0);
    // A tax number that cannot be right is pointed out beside the box, never refused.
    LblRuc = ruc::crearAviso(tx1, lienzo);
    tx1->setMinimumWidth(tx1->fontMetrics().horizontalAdvance(u"0000000000000"_s) + 16); // all 13 digits, hint or not
    auto* cajaRuc = new QHBoxLayout;
    cajaRuc->addWidget(tx1, 1);
    cajaRuc->addWidget(LblRuc);
    campos->addLayout(cajaRuc, 0, 1);
    campos->addWidget(crearEtiqueta(lienzo, 1, u"&Código:"_s, tx0), 0, 2);
    campos->addWidget(tx0, 0, 3);
    campos->addWidget(crearEtiqueta(lienzo, 3, u"Ra&zon social:"_s, tx2), 1, 0);
    campos->addWidget(tx2, 1, 1, 1, 3);
    campos->addWidget(crearEtiqueta(lienzo, 4, u"&Dirección:"_s, tx3), 2, 0);
    campos->addWidget(tx3, 2, 1, 1, 3);
    campos->setColumnStretch(1, 1);
    campos->setColumnStretch(3, 1);
    campos->setColumnMinimumWidth(1, 160);
    campos->setColumnMinimumWidth(3, 160);

    raiz->addWidget(Lbl[0]);
    raiz->addWidget(Lbl[1]);
    disponer(lienzo, raiz, campos,
             u"<CODIGO   |<NUMERO RUC |<RAZON SOCIAL                                 |<DIRECCIÓN                  |."_s,
             u"&Lista de subproveedores registradas"_s, {tx1, tx0, tx2, tx3});
    buscarAlTeclear(Tx[1], GR, 1);
}

void frmSubProveedor::Form_Load()
{
    CodigoActual = 0;
    M().HuboCambios = false;
    if (!LeerProveedor()) {
        Unload();
        return;
    }
    CargarLista();
}

// A supplier key that names no supplier is told, and the dialog doesn't
// open: a sub-supplier can't be stored under a supplier that isn't there.
bool frmSubProveedor::LeerProveedor()
{
    bool hallado = false;
    const bool leido = operacion([&] {
        QSqlQuery q = ejecutar(M().Conexion, u"SELECT nom, ced FROM mProveedor WHERE cod=?"_s, {M().CodigoProveedor});
        if (q.next()) {
            hallado = true;
            Lbl[0]->setText(q.value(0).toString());
            Lbl[1]->setText(u"RUC: "_s + q.value(1).toString());
        }
    });
    if (leido && !hallado)
        MsgBox(this, u"No existe el proveedor con código "_s + QString::number(M().CodigoProveedor)
                   + u": no se pueden administrar sus subproveedores."_s,
               estilo::Exclamacion, u"Aviso"_s);
    return hallado;
}

bool frmSubProveedor::Validar()
{
    // The address may be left empty.
    for (int i = 0; i < 3; ++i)
        if (Tx[i]->text().trimmed().isEmpty())
            return false;
    return true;
}

bool frmSubProveedor::Escribir()
{
    // The supplier is written at the insert only: an edit keeps the one it had.
    insertarOActualizar(u"INSERT INTO SubProveedor (ID,prov,cin,ruc,raz,dir,est) VALUES (?,?, ?,?,?,?,1)"_s,
                        QVariantList{M().IdEmp, qint64(M().CodigoProveedor)} + textos(4),
                        u"UPDATE SubProveedor SET cin=?, ruc=?, raz=?, dir=? WHERE cod=? AND id=?"_s, textos(4));
    return true;
}

void frmSubProveedor::MostrarRegistro()
{
    // The fields show the picked row even when its tax number is also the
    // beginning of an earlier row's: a number put there by the pick doesn't search.
    const qint32 fila = GR->Row();
    CodigoActual = GR->CellText(fila, 4).toInt();
    sinBuscar([&] {
        for (int i = 0; i < 4; ++i)
            Tx[i]->setText(GR->CellText(fila, i));
    });
    ruc::revisar(LblRuc, Tx[1]->text());
    Tx[0]->setFocus();
    modoExistente(true);
}

} // namespace nomencla
