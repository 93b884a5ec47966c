#include "catalogues/ListaNombrada.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsGrillas.h"

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

ListaNombrada::ListaNombrada(const DatosListaNombrada& datos)
    : Formulario(datos.forma, datos.titulo, datos.keyPreview), d_(datos)
{
}

ListaNombrada::~ListaNombrada() = default;

void ListaNombrada::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);

    marcoCampos = new QFrame(lienzo);
    marcoCampos->setFrameShape(QFrame::StyledPanel);
    auto* campos = new QGridLayout(marcoCampos);
    auto* etiqueta = new Etiqueta(d_.etiquetaTexto, marcoCampos);
    etiqueta->setObjectName(u"Label1(1)"_s);
    Text1 = new CajaTexto(marcoCampos, largoTexto);
    Text1->setObjectName(u"Text1"_s);
    Text1->setMinimumWidth(320);
    etiqueta->setBuddy(Text1);
    Bt0 = new Pulsante(u"   &Agregar"_s, marcoCampos);
    Bt0->setObjectName(u"Bt(0)"_s);
    campos->addWidget(etiqueta, 0, 0);
    campos->addWidget(Text1, 0, 1, 1, 3);
    campos->addWidget(Bt0, 0, 4);
    QWidget* ultimo = disenarCampos(campos, 1, Text1);
    disposicion->addWidget(marcoCampos);

    panelLista = new QWidget(lienzo);
    auto* panel = new QVBoxLayout(panelLista);
    panel->setContentsMargins(0, 0, 0, 0);
    marcoLista = new QFrame(panelLista);
    marcoLista->setFrameShape(QFrame::StyledPanel);
    auto* lista = new QVBoxLayout(marcoLista);
    auto* titulo = new Etiqueta(d_.etiquetaLista, marcoLista);
    titulo->setObjectName(u"Label1(0)"_s);
    GR = new Alfarje(marcoLista);
    GR->setObjectName(u"GR"_s);
    GR->setFormatocolumnas(d_.formato);
    GR->setShowrownumbers(true);
    GR->setTotalslineshow(false);
    GR->setMinimumSize(420, 260);
    if (d_.importable)
        exportar::setImportador(GR, this);
    titulo->setBuddy(GR);
    Bt1 = new Pulsante(u"  &Quitar"_s, marcoLista);
    Bt1->setObjectName(u"Bt(1)"_s);
    Bt1->setEnabled(false);
    auto* botones = new QHBoxLayout;
    botones->addStretch();
    botones->addWidget(Bt1);
    lista->addWidget(titulo);
    lista->addWidget(GR);
    lista->addLayout(botones);
    panel->addWidget(marcoLista);
    disposicion->addWidget(panelLista);

    setTabOrder(ultimo, Bt0);
    setTabOrder(Bt0, GR);
    setTabOrder(GR, Bt1);

    connect(Bt0, &QPushButton::clicked, this, [this] { Bt_Click(0); });
    connect(Bt1, &QPushButton::clicked, this, [this] { Bt_Click(1); });
    connect(GR, &Alfarje::Click, this, [this] { MostrarRegistro(); });
    // The search as the user types moves the selection and leaves the picked record alone.
    buscarAlTeclear(Text1, GR);
    Text1->setFocus();
}

void ListaNombrada::Form_Load()
{
    CodigoActual = 0;
    nombreActual_.clear();
    CargarLista();
    M().HuboCambios = false;
}

void ListaNombrada::llenar()
{
    M().grillas().LlenarGrilla(M().Conexion, GR, d_.lista.sql, d_.lista.enlazar(M().IdEmp), d_.campos, false, true);
}

void ListaNombrada::CargarLista()
{
    operacion([this] { llenar(); });
}

void ListaNombrada::Bt_Click(int Index)
{
    if (Index == 0)
        Guardar();
    else if (Index == 1)
        Quitar();
}

QVariantList ListaNombrada::valores(const QString& texto) const
{
    QVariantList v{texto, CodigoActual};
    v += valoresPropios();
    return v;
}

void ListaNombrada::Guardar()
{
    const QString T = Text1->text().trimmed();
    if (!rechazo(T).isEmpty())
        return; // too short: nothing happens, the text and the pick stay
    // A rename may take another record's text; only a new record is a duplicate.
    if (CodigoActual == 0 && GR->FindRow(T, 0, 0, false) >= 0) {
        MsgBox(this, d_.msgDuplicado, estilo::Critico, u"Aviso"_s);
        Text1->setText(QString());
        Text1->setFocus();
        return;
    }
    const Sentencia& s = CodigoActual < 1 ? d_.insertar : d_.actualizar;
    // The picked record's name, left as shown, is written as stored.
    const QVariantList propios = valores(CodigoActual > 0 && Text1->text() == nombreActual_ ? nombreActual_ : T);
    if (!operacion([&] {
            ejecutar(M().Conexion, s.sql, s.enlazar(M().IdEmp, propios));
            M().HuboCambios = true;
            llenar();
        }))
        return;
    MsgBox(this, u"La información se ha guardado con éxito!"_s, estilo::Informacion, u"Listo"_s);
    Text1->setText(QString());
    Text1->setFocus();
    sinSeleccion();
}

QString ListaNombrada::rechazo(const QString& texto, bool desdeArchivo) const
{
    return motivoLargo(texto, d_.largoMinimo, desdeArchivo ? largoTexto : sinTope);
}

QString ListaNombrada::rechazoImportacion(const QStringList& valores) const
{
    return rechazo(valores.value(0), true);
}

void ListaNombrada::insertarImportados(const QList<QStringList>& filas)
{
    Transaccion transaccion(M().Conexion);
    for (const QStringList& fila : filas)
        ejecutar(M().Conexion, d_.insertar.sql, d_.insertar.enlazar(M().IdEmp, {fila.value(0), qint64(0)}));
    transaccion.confirmar();
}

void ListaNombrada::trasImportar()
{
    M().HuboCambios = true;
    CargarLista();
}

void ListaNombrada::Quitar()
{
    if (CodigoActual < 1)
        return;
    // The question names the record that the removal goes to (the one picked),
    // not the row that typing in Text1 may have moved the selection to since.
    if (MsgBox(this, d_.msgConfirmar.arg(nombreActual_), estilo::PreguntaSiNo, u"CONFIRME"_s) != vbYes)
        return;
    const QVariantList propios = valores(Text1->text().trimmed());
    if (!operacion([&] {
            ejecutar(M().Conexion, d_.quitar.sql, d_.quitar.enlazar(M().IdEmp, propios));
            M().HuboCambios = true;
            llenar();
        }))
        return;
    sinSeleccion();
    GR->ClearSelection();
}

void ListaNombrada::MostrarRegistro()
{
    const int fila = GR->Row();
    if (fila < 0)
        return;
    CodigoActual = GR->CellText(fila, d_.columnaClave).toLongLong();
    nombreActual_ = GR->CellText(fila, 0);
    sinBuscar([&] {
        mostrarCampos(fila);
        Text1->setText(nombreActual_);
    });
    Text1->setFocus();
    Bt1->setEnabled(CodigoActual > 0);
}

void ListaNombrada::sinSeleccion()
{
    CodigoActual = 0;
    nombreActual_.clear();
    Bt1->setEnabled(false);
}

} // namespace nomencla
