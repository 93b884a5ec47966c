#include "catalogues/ListaSimple.h"

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

ListaSimple::ListaSimple(const DatosListaSimple& datos)
    : Formulario(datos.forma, datos.titulo, datos.keyPreview), d_(datos)
{
}

ListaSimple::~ListaSimple() = default;

void ListaSimple::Disenar(QWidget* lienzo)
{
    auto* rejilla = new QGridLayout(lienzo);

    auto* etiqueta = new Etiqueta(d_.etiquetaTexto, lienzo);
    etiqueta->setObjectName(u"Label1(0)"_s);
    Text1 = new CajaTexto(lienzo, d_.largoTexto);
    Text1->setObjectName(u"Text1"_s);
    etiqueta->setBuddy(Text1);

    auto* agregar = new Pulsante(u"Agregar"_s, lienzo);
    agregar->setObjectName(u"Bt(0)"_s);
    auto* nuevo = new Pulsante(d_.txNuevo, lienzo);
    nuevo->setObjectName(u"Bt(1)"_s);
    auto* quitar = new Pulsante(QString(), lienzo, style()->standardIcon(QStyle::SP_TrashIcon));
    quitar->setObjectName(u"Bt(2)"_s);
    quitar->setToolTip(u"Quitar el elemento seleccionado"_s);
    quitar->setAccessibleName(u"Quitar"_s);

    auto* lista = new Etiqueta(d_.etiquetaLista, lienzo);
    lista->setObjectName(u"Label1(1)"_s);
    GR = new Alfarje(lienzo);
    GR->setObjectName(u"GR"_s);
    GR->setFormatocolumnas(d_.formato);
    GR->setShowrownumbers(true);
    GR->setSearchcolumn(-1);
    GR->setTotalslineshow(false);
    GR->setMinimumSize(360, 320);
    if (d_.importable)
        exportar::setImportador(GR, this);

    auto* botones = new QHBoxLayout;
    botones->addWidget(agregar);
    botones->addWidget(nuevo);
    botones->addWidget(quitar);
    botones->addStretch();

    rejilla->addWidget(etiqueta, 0, 0);
    rejilla->addWidget(Text1, 0, 1);
    QWidget* ultimo = Text1;
    int fila = 1;
    if (!d_.etiquetaSegundo.isEmpty()) {
        auto* etiqueta2 = new Etiqueta(d_.etiquetaSegundo, lienzo);
        etiqueta2->setObjectName(u"Label1(2)"_s);
        Text2 = new CajaTexto(lienzo, d_.largoSegundo);
        Text2->setObjectName(u"Text2"_s);
        etiqueta2->setBuddy(Text2);
        rejilla->addWidget(etiqueta2, fila, 0);
        rejilla->addWidget(Text2, fila, 1);
        setTabOrder(Text1, Text2);
        ultimo = Text2;
        ++fila;
    }
    rejilla->addLayout(botones, fila, 0, 1, 2);
    rejilla->addWidget(lista, fila + 1, 0, 1, 2);
    rejilla->addWidget(GR, fila + 2, 0, 1, 2);

    setTabOrder(ultimo, agregar);
    setTabOrder(agregar, nuevo);
    setTabOrder(nuevo, quitar);
    setTabOrder(quitar, GR);

    connect(agregar, &QPushButton::clicked, this, [this] { Bt_Click(0); });
    connect(nuevo, &QPushButton::clicked, this, [this] { Bt_Click(1); });
    connect(quitar, &QPushButton::clicked, this, [this] { Bt_Click(2); });
    buscarAlTeclear(Text1, GR);
    connect(Text1, &CajaTexto::KeyPress, this, [this](int& KeyAscii) {
        if (KeyAscii == vbKeyReturn && d_.enterGuarda)
            Bt_Click(0);
    });
    Text1->setFocus();
}

void ListaSimple::Form_Load()
{
    CargarLista();
    M().HuboCambios = false;
}

void ListaSimple::CargarLista()
{
    clsGrillas* grillas = nullptr;
    if (d_.grillasPropias) {
        if (!grillas_)
            grillas_ = std::make_unique<clsGrillas>();
        grillas = grillas_.get();
    } else {
        grillas = &M().grillas();
    }
    operacion([&] {
        grillas->LlenarGrilla(M().Conexion, GR, d_.lista.sql, d_.lista.enlazar(M().IdEmp), d_.campos, false, true);
    });
}

void ListaSimple::Bt_Click(int Index)
{
    switch (Index) {
    case 0: Guardar(); break;
    case 1: Nuevo(); break;
    case 2: Quitar(); break;
    default: break;
    }
}

void ListaSimple::Guardar()
{
    const QString nombre = Text1->text().trimmed();
    const QString segundo = Text2 ? Text2->text().trimmed() : QString();
    if (!rechazo(nombre, segundo).isEmpty()) {
        MsgBox(this, d_.msgVacio, estilo::Critico, u"Error"_s);
    } else if (GR->FindRow(nombre, 0, 0, false) >= 0) {
        MsgBox(this, d_.msgDuplicado, estilo::Exclamacion, u"AVISO"_s);
    } else {
        const bool hecho = operacion([&] {
            QSqlQuery q = insertar(nombre, segundo);
            QStringList fila{nombre};
            if (Text2)
                fila.append(segundo);
            if (d_.porClave) {
                // The new row carries its key, so it can be removed in this same opening.
                QVariant clave = q.lastInsertId();
                if (!clave.isValid())
                    clave = consultarValor(M().Conexion, u"SELECT LAST_INSERT_ID() AS cod"_s);
                fila.append(clave.toString());
            }
            GR->AddItem(fila);
        });
        if (hecho) {
            vaciar();
            M().HuboCambios = true;
            MsgBox(this, u"La información se ha guardado correctamente!"_s, estilo::Informacion, u"Listo"_s);
        }
    }
    Text1->setFocus();
}

QString ListaSimple::rechazo(const QString& nombre, const QString& segundo, bool desdeArchivo) const
{
    // The boxes hold no more than their length: a longer text from a file is refused.
    const int tope = desdeArchivo ? d_.largoTexto : sinTope;
    if (d_.etiquetaSegundo.isEmpty())
        return motivoLargo(nombre, 1, tope);
    const QStringList titulos = exportar::titulos(GR);
    const QString r = motivoLargo(nombre, 1, tope, titulos.value(0));
    return r.isEmpty() ? motivoLargo(segundo, 1, desdeArchivo ? d_.largoSegundo : sinTope, titulos.value(1)) : r;
}

QSqlQuery ListaSimple::insertar(const QString& nombre, const QString& segundo)
{
    return ejecutar(M().Conexion, d_.insertar.sql, d_.insertar.enlazar(M().IdEmp, {nombre, {}, segundo}));
}

QString ListaSimple::rechazoImportacion(const QStringList& valores) const
{
    return rechazo(valores.value(0), valores.value(1), true);
}

void ListaSimple::insertarImportados(const QList<QStringList>& filas)
{
    Transaccion transaccion(M().Conexion);
    for (const QStringList& fila : filas)
        insertar(fila.value(0), fila.value(1));
    transaccion.confirmar();
}

void ListaSimple::trasImportar()
{
    M().HuboCambios = true;
    CargarLista();
}

void ListaSimple::Nuevo()
{
    vaciar();
}

void ListaSimple::vaciar()
{
    Text1->setText(QString());
    if (Text2)
        Text2->setText(QString());
    Text1->setFocus();
}

void ListaSimple::Quitar()
{
    const int fila = GR->Row();
    if (fila < 0)
        return;
    const QString nombre = GR->CellText();
    const QString clave = d_.porClave ? GR->CellText(fila, 1) : QString();
    if (d_.porClave && clave.isEmpty())
        return; // a row without its key cannot be addressed
    const QVariantList propios{nombre, clave.toLongLong(), GR->CellText(fila, 1)};
    if (!d_.referencia.vacia()) {
        QVariant usos;
        if (!operacion([&] {
                if (!d_.suplente.vacia()
                    && consultarValor(M().Conexion, d_.suplente.sql, d_.suplente.enlazar(M().IdEmp, propios)).toLongLong() > 0)
                    return;
                usos = M().servicios().ConsultarValor(M().Conexion, d_.referencia.sql,
                                                      d_.referencia.enlazar(M().IdEmp, propios));
            }))
            return;
        if (usos.toLongLong() > 0) {
            MsgBox(this, d_.msgReferencia.arg(nombre), estilo::Exclamacion, u"AVISO"_s);
            return;
        }
    }
    if (MsgBox(this, d_.msgConfirmar.arg(nombre), estilo::ExclamacionSiNo, u"CONFIRME"_s) != vbYes)
        return;
    if (!operacion([&] { ejecutar(M().Conexion, d_.borrar.sql, d_.borrar.enlazar(M().IdEmp, propios)); }))
        return;
    GR->RemoveItem();
    M().HuboCambios = true;
    MsgBox(this, u"La operación se realizó correctamente!"_s, estilo::Informacion, u"Listo"_s);
    vaciar();
}

} // namespace nomencla
