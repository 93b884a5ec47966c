#include "company/frmSucursales.h"

#include "core/Alfarje.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsServicios.h"

#include <QGridLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

frmSucursales::frmSucursales()
    : EstructuraEmpresa({u"frmSucursales"_s, u"Administración de sucursales"_s, u"CREANDO NUEVA SUCURSAL"_s,
                         u"MODIFICANDO SUCURSAL EXISTENTE"_s, u"UPDATE Sucursales SET est=0 WHERE cod=? AND id=?"_s,
                         u"la sucursal"_s, 1,
                         u"SELECT emp,nom,ciu,dir,tel,cod,est FROM Sucursales WHERE  id=? AND est<>0 ORDER BY ciu, nom"_s,
                         u"emp,nom,ciu,dir,tel,cod,est"_s})
{
}

void frmSucursales::Disenar(QWidget* lienzo)
{
    Tx.clear();
    auto* raiz = new QVBoxLayout(lienzo);
    auto* campos = new QGridLayout;

    Cmb = new Combo(lienzo);
    Cmb->setObjectName(u"Cmb"_s);
    auto* tx0 = crearTx(lienzo, 0, 25, true);
    auto* tx1 = crearTx(lienzo, 1, 60);
    auto* tx2 = crearTx(lienzo, 2, 100);
    auto* tx3 = crearTx(lienzo, 3, 10);

    campos->addWidget(crearEtiqueta(lienzo, 5, u"Empresa:"_s, Cmb), 0, 0);
    campos->addWidget(Cmb, 0, 1, 1, 3);
    campos->addWidget(crearEtiqueta(lienzo, 1, u"&Ciudad:"_s, tx0), 1, 0);
    campos->addWidget(tx0, 1, 1);
    campos->addWidget(crearEtiqueta(lienzo, 2, u"N&ombre:"_s, tx1), 1, 2);
    campos->addWidget(tx1, 1, 3);
    campos->addWidget(crearEtiqueta(lienzo, 3, u"&Dirección:"_s, tx2), 2, 0);
    campos->addWidget(tx2, 2, 1, 1, 3);
    campos->addWidget(crearEtiqueta(lienzo, 4, u"&Teléfono:"_s, tx3), 3, 0);
    campos->addWidget(tx3, 3, 1);
    campos->setColumnStretch(1, 1);
    campos->setColumnStretch(3, 2);
    campos->setColumnMinimumWidth(1, 160);
    campos->setColumnMinimumWidth(3, 240);

    disponer(lienzo, raiz, campos,
             u"< EMPRESA              |<NOMBRE SUCURSAL|<CIUDAD     |<DIRECCIÓN                                |.|.|."_s,
             u"&Lista de sucursales registradas"_s, {Cmb, tx0, tx1, tx2, tx3});
    // Typing an address looks for it among the cities, the list's order.
    buscarAlTeclear(Tx[2], GR, 2);
}

void frmSucursales::Form_Load()
{
    CodigoActual = 0;
    CargarLista();
    M().HuboCambios = false;
    operacion([this] {
        M().servicios().LlenarCombo(M().Conexion, u"SELECT emp,cod FROM empresas where id=? and est=1 order by emp"_s,
                                    {M().IdEmp}, Cmb, u"emp"_s, u"cod"_s, true, true, QString());
    });
}

bool frmSucursales::Validar()
{
    QString mensaje;
    if (empresa().isEmpty())
        mensaje = u"Debe especificar el nombre de la empresa"_s;
    else if (Tx[0]->text().trimmed().isEmpty())
        mensaje = u"Debe especificar la ciudad"_s;
    else if (Tx[1]->text().trimmed().isEmpty())
        mensaje = u"Debe especificar un nombre para la sucursal"_s;
    else if (Tx[2]->text().trimmed().isEmpty())
        mensaje = u"Debe especificar la dirección"_s;
    if (mensaje.isEmpty())
        return true;
    MsgBox(this, mensaje, estilo::Critico, u"Aviso"_s);
    return false;
}

bool frmSucursales::Escribir()
{
    const QVariantList propios = QVariantList{empresa()} + textos(4);
    insertarOActualizar(u"INSERT INTO Sucursales (ID,emp,ciu,nom,dir,tel,est) VALUES (?,?,?,?,?,?,1)"_s,
                        QVariantList{M().IdEmp} + propios,
                        u"UPDATE Sucursales SET emp=?,ciu=?, nom=?, dir=?, tel=? WHERE cod=? AND id=?"_s, propios);
    return true;
}

QString frmSucursales::empresa() const
{
    return CodigoActual > 0 ? empresa_.valor(QString::number(Cmb->ListIndex()), Cmb->Text()).toString() : Cmb->Text();
}

void frmSucursales::MostrarRegistro()
{
    // The fields and Bt(1) show the row that was picked: its cells are read
    // before the address is put in its box, which would otherwise search.
    const qint32 fila = GR->Row();
    CodigoActual = qint32(GR->CellValue(fila, 5));
    const bool activa = GR->CellValue(fila, 5) > 1 && GR->CellValue(fila, 6) == 1;
    // A company that the list no longer offers (removed, or named otherwise)
    // shows as none, and the branch keeps it unless the clerk chooses one:
    // a pick never moves a branch to the company shown before.
    Cmb->setListIndex(Cmb->findText(GR->CellText(fila, 0)));
    empresa_.mostrar(QString::number(Cmb->ListIndex()), GR->CellText(fila, 0));
    sinBuscar([&] {
        Tx[1]->setText(GR->CellText(fila, 1));
        Tx[0]->setText(GR->CellText(fila, 2));
        Tx[2]->setText(GR->CellText(fila, 3));
        Tx[3]->setText(GR->CellText(fila, 4));
    });
    Tx[0]->setFocus();
    modoExistente(activa);
}

} // namespace nomencla
