#include "company/EstructuraEmpresa.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsGrillas.h"

#include <QHBoxLayout>
#include <QVBoxLayout>
#include <QStyle>

using namespace Qt::StringLiterals;

namespace nomencla {

EstructuraEmpresa::EstructuraEmpresa(DatosEstructura datos)
    : Formulario(datos.forma, datos.titulo, false), d_(std::move(datos))
{
}

CajaTexto* EstructuraEmpresa::crearTx(QWidget* lienzo, int indice, int maxLength, bool centrada)
{
    auto* caja = new CajaTexto(lienzo, maxLength);
    caja->setObjectName(u"Tx(%1)"_s.arg(indice));
    if (centrada)
        caja->setAlignment(Qt::AlignCenter);
    if (Tx.size() <= indice)
        Tx.resize(indice + 1);
    Tx[indice] = caja;
    return caja;
}

Etiqueta* EstructuraEmpresa::crearEtiqueta(QWidget* lienzo, int indice, const QString& texto, QWidget* companero)
{
    auto* etiqueta = new Etiqueta(texto, lienzo);
    etiqueta->setObjectName(u"Label1(%1)"_s.arg(indice));
    if (companero)
        etiqueta->setBuddy(companero);
    return etiqueta;
}

void EstructuraEmpresa::disponer(QWidget* lienzo, QVBoxLayout* raiz, QLayout* campos, const QString& formato,
                                  const QString& etiquetaLista, const QList<QWidget*>& orden)
{
    Label2 = new Etiqueta(d_.bannerNuevo, lienzo);
    Label2->setObjectName(u"Label2"_s);
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setFrameShape(QFrame::Panel);
    Label2->setFrameShadow(QFrame::Sunken);
    Label2->setMinimumHeight(26);
    QFont letra = Label2->font();
    letra.setBold(true);
    Label2->setFont(letra);
    Label2->setBackColor(colorNuevo);

    GR = new Alfarje(lienzo);
    GR->setObjectName(u"GR"_s);
    GR->setFormatocolumnas(formato);
    GR->setShowrownumbers(true);
    GR->setTotalslineshow(false);
    GR->setMinimumHeight(240);
    connect(GR, &Alfarje::Click, this, [this] {
        if (GR->Row() < 0)
            return;
        MostrarRegistro();
        // The boxes hold the stored texts, whole.
        mostrados_.resize(Tx.size());
        for (qsizetype i = 0; i < Tx.size(); ++i)
            mostrados_[i].mostrar(Tx[i]->text(), Tx[i]->text());
    });

    struct Boton {
        QString tx;
        QStyle::StandardPixmap icono;
    };
    const Boton botones[] = {{u"  &Guardar"_s, QStyle::SP_DialogSaveButton},
                             {u"     &Quitar"_s, QStyle::SP_TrashIcon},
                             {u"   &Nueva"_s, QStyle::SP_FileIcon},
                             {u"    &Salir"_s, QStyle::SP_DialogCloseButton}};
    auto* fila = new QHBoxLayout;
    Bt.clear();
    for (int i = 0; i < 4; ++i) {
        auto* b = new Pulsante(botones[i].tx, lienzo, style()->standardIcon(botones[i].icono));
        b->setObjectName(u"Bt(%1)"_s.arg(i));
        b->setMinimumWidth(96);
        connect(b, &QPushButton::clicked, this, [this, i] { Bt_Click(i); });
        Bt.append(b);
        if (i == 3)
            fila->addStretch();
        fila->addWidget(b);
    }
    Bt[1]->setEnabled(false);

    raiz->addWidget(Label2);
    raiz->addLayout(campos);
    raiz->addWidget(crearEtiqueta(lienzo, 0, etiquetaLista, GR));
    raiz->addWidget(GR, 1);
    raiz->addLayout(fila);

    QList<QWidget*> cadena = orden;
    cadena << GR;
    for (Pulsante* b : std::as_const(Bt))
        cadena << b;
    for (qsizetype i = 0; i + 1 < cadena.size(); ++i)
        setTabOrder(cadena[i], cadena[i + 1]);
    if (!orden.isEmpty())
        orden.first()->setFocus();
}

void EstructuraEmpresa::Bt_Click(int Index)
{
    switch (Index) {
    case 0: Guardar(); break;
    case 1: Quitar(); break;
    case 2: Nuevo(); break;
    case 3: Unload(); break;
    default: break;
    }
}

void EstructuraEmpresa::modoNuevo()
{
    Label2->setText(d_.bannerNuevo);
    Label2->setBackColor(colorNuevo);
    Bt[1]->setEnabled(false);
}

void EstructuraEmpresa::modoExistente(bool quitable)
{
    Bt[1]->setEnabled(quitable);
    Label2->setText(d_.bannerExistente);
    Label2->setBackColor(colorCaraBoton);
}

void EstructuraEmpresa::Guardar()
{
    if (!Validar()) {
        MsgBox(this, u"Debe ingresar toda la información antes de guardar!"_s, estilo::Critico, u"Error"_s);
        return;
    }
    bool escrito = false;
    if (!operacion([&] { escrito = Escribir(); }) || !escrito)
        return;
    trasEscribir();
    M().HuboCambios = true;
    if (!CargarLista())
        return;
    MsgBox(this, u"La información se ha guardado con éxito!"_s, estilo::Informacion, u"Listo"_s);
    Nuevo();
}

void EstructuraEmpresa::Quitar()
{
    // The first record (key 1) is never removed.
    if (CodigoActual <= 1)
        return;
    bool permitido = false;
    if (!operacion([&] { permitido = PuedeQuitar(); }) || !permitido)
        return;
    const QString pregunta = u"Está seguro que desea quitar "_s + d_.objetoQuitar + u" ''"_s
        + Tx[d_.cajaQuitar]->text() + u"'' de la base de datos?"_s;
    if (MsgBox(this, pregunta, estilo::ExclamacionSiNo, u"CONFIRME"_s) != vbYes)
        return;
    if (!operacion([&] { ejecutar(M().Conexion, d_.sqlQuitar, {CodigoActual, M().IdEmp}); }))
        return;
    M().HuboCambios = true;
    if (!CargarLista())
        return;
    Nuevo();
    MsgBox(this, u"La operación se realizó correctamente!"_s, estilo::Informacion, u"Listo"_s);
}

bool EstructuraEmpresa::CargarLista()
{
    return operacion([this] {
        M().grillas().LlenarGrilla(M().Conexion, GR, d_.sqlLista, {M().IdEmp}, d_.camposLista, false, true);
    });
}

QVariantList EstructuraEmpresa::textos(int n) const
{
    QVariantList r;
    for (int i = 0; i < n; ++i)
        r.append(valorTx(i));
    return r;
}

QVariant EstructuraEmpresa::valorTx(int indice) const
{
    const QString nuevo = Tx[indice]->text().trimmed();
    if (CodigoActual <= 0 || indice >= mostrados_.size())
        return nuevo;
    return mostrados_[indice].valor(Tx[indice]->text(), nuevo);
}

void EstructuraEmpresa::insertarOActualizar(const QString& insertar, const QVariantList& valoresInsertar,
                                            const QString& actualizar, QVariantList valoresActualizar)
{
    if (CodigoActual <= 0) {
        ejecutar(M().Conexion, insertar, valoresInsertar);
    } else {
        valoresActualizar << CodigoActual << M().IdEmp;
        ejecutar(M().Conexion, actualizar, valoresActualizar);
    }
}

void EstructuraEmpresa::limpiarCampos()
{
    for (CajaTexto* caja : std::as_const(Tx))
        caja->setText(QString());
}

void EstructuraEmpresa::Nuevo()
{
    CodigoActual = 0;
    mostrados_.clear();
    limpiarCampos();
    modoNuevo();
    Tx[0]->setFocus();
}

} // namespace nomencla
