#include "catalogues/ListaCodificada.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsGrillas.h"
#include "core/clsServicios.h"

#include <QFontMetrics>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QScrollBar>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {

// Each retry of a key must see the other clerk's row, so a save reads
// committed data, not the snapshot of its first read.
void leerConfirmado(QSqlDatabase& db)
{
    const QString driver = db.driverName();
    if (driver.startsWith(u"QMYSQL"_s) || driver.startsWith(u"QMARIADB"_s))
        ejecutar(db, u"SET TRANSACTION ISOLATION LEVEL READ COMMITTED"_s);
}

} // namespace

ListaCodificada::ListaCodificada(const DatosListaCodificada& datos)
    : Formulario(datos.forma, datos.titulo, datos.keyPreview), d_(datos)
{
}

ListaCodificada::~ListaCodificada() = default;

QWidget* ListaCodificada::Tx(int indice) const
{
    if (indice == 0)
        return Tx0_;
    if (indice == 1)
        return Tx1_;
    return ctl<QWidget>(u"Tx(%1)"_s.arg(indice));
}

QString ListaCodificada::texto(int indice) const
{
    const QWidget* caja = Tx(indice);
    return caja ? caja->property("text").toString() : QString();
}

void ListaCodificada::ponerTexto(int indice, const QString& texto)
{
    if (QWidget* caja = Tx(indice))
        caja->setProperty("text", texto);
}

void ListaCodificada::mostrarValor(int indice, const QVariant& almacenado)
{
    mostrados_[indice].mostrar(texto(indice), almacenado);
}

QVariant ListaCodificada::valorDe(int indice, const QVariant& nuevo) const
{
    const auto m = mostrados_.constFind(indice);
    return CodigoActual > 0 && m != mostrados_.cend() ? m->valor(texto(indice), nuevo) : nuevo;
}

void ListaCodificada::Disenar(QWidget* lienzo)
{
    auto* cuerpo = new QVBoxLayout(lienzo);
    auto* campos = new QGridLayout;
    campos->setColumnStretch(1, 1);

    auto* etiqueta0 = new Etiqueta(d_.etiquetaTexto0, lienzo);
    etiqueta0->setObjectName(u"Label1(1)"_s);
    Tx0_ = new CajaTexto(lienzo, d_.limite0);
    Tx0_->setObjectName(u"Tx(0)"_s);
    if (d_.centrado0)
        Tx0_->setAlignment(Qt::AlignCenter);
    if (d_.limite0 <= 6) // a short code: a box as wide as it
        Tx0_->setMaximumWidth(Tx0_->fontMetrics().horizontalAdvance(u'W') * (d_.limite0 + 3));
    etiqueta0->setBuddy(Tx0_);

    auto* etiqueta1 = new Etiqueta(d_.etiquetaTexto1, lienzo);
    etiqueta1->setObjectName(u"Label1(2)"_s);
    if (d_.multilinea1) {
        auto* caja = new CajaTextoMultilinea(lienzo, d_.limite1);
        caja->setFixedHeight(caja->fontMetrics().lineSpacing() * 3 + 12);
        Tx1_ = caja;
    } else {
        Tx1_ = new CajaTexto(lienzo, d_.limite1);
    }
    Tx1_->setObjectName(u"Tx(1)"_s);
    etiqueta1->setBuddy(Tx1_);

    campos->addWidget(etiqueta0, 0, 0);
    if (d_.limite0 <= 6)
        campos->addWidget(Tx0_, 0, 1, Qt::AlignLeft);
    else
        campos->addWidget(Tx0_, 0, 1);
    campos->addWidget(etiqueta1, 1, 0, Qt::AlignTop);
    campos->addWidget(Tx1_, 1, 1);
    cuerpo->addLayout(campos);

    Label2 = new Etiqueta(d_.bannerInicial, lienzo);
    Label2->setObjectName(u"Label2"_s);
    Label2->setAlignment(Qt::AlignCenter);
    Label2->setMinimumHeight(Label2->fontMetrics().height() + 10);
    QFont negrita = Label2->font();
    negrita.setBold(true);
    Label2->setFont(negrita);
    Label2->setBackColor(colorNuevo);
    cuerpo->addWidget(Label2);

    auto* etiquetaLista = new Etiqueta(d_.etiquetaLista, lienzo);
    etiquetaLista->setObjectName(u"Label1(0)"_s);
    GR = new Alfarje(lienzo);
    GR->setObjectName(u"GR"_s);
    GR->setFormatocolumnas(d_.formato);
    GR->setShowrownumbers(true);
    GR->setTotalslineshow(false);
    if (d_.importable)
        exportar::setImportador(GR, this);
    // Wide enough for every column of the format, as the user reads a row.
    GR->setMinimumSize(std::max(520, GR->horizontalHeader()->length() + GR->verticalHeader()->sizeHint().width()
                                         + GR->verticalScrollBar()->sizeHint().width() + 2 * GR->frameWidth() + 4),
                       260);
    etiquetaLista->setBuddy(GR);
    cuerpo->addWidget(etiquetaLista);
    cuerpo->addWidget(GR);

    DisenarExtra(lienzo, campos, cuerpo);

    static const char16_t* const captions[4] = {u"  &Guardar", u"     &Quitar", u"   &Nueva", u"    &Salir"};
    auto* botones = new QHBoxLayout;
    for (int i = 0; i < 4; ++i) {
        Bt_[i] = new Pulsante(QString::fromUtf16(captions[i]), lienzo);
        Bt_[i]->setObjectName(u"Bt(%1)"_s.arg(i));
        if (i == 3)
            botones->addStretch();
        botones->addWidget(Bt_[i]);
        connect(Bt_[i], &QPushButton::clicked, this, [this, i] { Bt_Click(i); });
    }
    Bt_[1]->setEnabled(false);
    cuerpo->addLayout(botones);

    // Tab order: the fields as they stand (extras included), the buttons, the list.
    QWidget* anterior = nullptr;
    const auto orden = lienzo->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
    QList<QWidget*> cajas;
    for (QWidget* w : orden)
        if (w->objectName().startsWith(u"Tx("_s))
            cajas.append(w);
    std::sort(cajas.begin(), cajas.end(), [](QWidget* a, QWidget* b) {
        return a->objectName().mid(3).chopped(1).toInt() < b->objectName().mid(3).chopped(1).toInt();
    });
    for (QWidget* w : cajas) {
        if (anterior)
            setTabOrder(anterior, w);
        anterior = w;
    }
    for (Pulsante* b : Bt_) {
        setTabOrder(anterior, b);
        anterior = b;
    }
    setTabOrder(anterior, GR);

    buscarAlTeclear(Tx0_, GR);
    connect(GR, &Alfarje::Click, this, &ListaCodificada::MostrarRegistro);
    Tx0_->setFocus();
}

void ListaCodificada::DisenarExtra(QWidget*, QGridLayout*, QBoxLayout*) {}

void ListaCodificada::Form_Load()
{
    CodigoActual = 0;
    mostrados_.clear();
    operacion([this] { CargarLista(); });
    M().HuboCambios = false;
}

void ListaCodificada::CargarLista()
{
    M().grillas().LlenarGrilla(M().Conexion, GR, d_.lista.sql, d_.lista.enlazar(M().IdEmp, valores()), d_.campos,
                               false, true);
}

void ListaCodificada::Bt_Click(int Index)
{
    switch (Index) {
    case 0: Guardar(); break;
    case 1: Quitar(); break;
    case 2: Nuevo(); break;
    case 3: Unload(); break;
    default: break;
    }
}

QVariantList ListaCodificada::valores() const
{
    QVariantList v{valorDe(0, texto(0).trimmed()), valorDe(1, texto(1).trimmed()), qint64(CodigoActual)};
    v.append(valoresExtra());
    return v;
}

void ListaCodificada::modo(bool nuevo)
{
    Label2->setText(nuevo ? d_.bannerNuevo : d_.bannerExistente);
    Label2->setBackColor(nuevo ? colorNuevo : colorCaraBoton);
}

void ListaCodificada::Guardar()
{
    const QString t0 = texto(0).trimmed();
    if (!rechazoTexto0(t0).isEmpty()) {
        MsgBox(this, d_.msgVacio, estilo::Critico, u"Error"_s);
        return;
    }
    if (CodigoActual == 0 && GR->FindRow(t0, 0, 0, false) >= 0) {
        MsgBox(this, d_.msgDuplicado, estilo::Critico, u"Aviso"_s);
        ponerTexto(0, QString());
        Tx0_->setFocus();
        return;
    }
    QSqlDatabase& db = M().Conexion;
    const qint32 anterior = CodigoActual;
    const bool hecho = operacion([&] {
        // A run again after a conflict starts from the mode of the fields.
        CodigoActual = anterior;
        leerConfirmado(db);
        Transaccion transaccion(db);
        if (CodigoActual < 1) {
            CodigoActual = insertarNuevo(valores());
        } else {
            ejecutar(db, d_.actualizar.sql, d_.actualizar.enlazar(M().IdEmp, valores()));
        }
        guardarExtra();
        transaccion.confirmar();
    });
    if (!hecho) {
        CodigoActual = anterior; // nothing was written: the fields keep their mode
        return;
    }
    M().HuboCambios = true;
    if (!operacion([this] { CargarLista(); }))
        return;
    MsgBox(this, u"La información se ha guardado con éxito!"_s, estilo::Informacion, u"Listo"_s);
    Nuevo();
    despuesDeGuardar();
}

QString ListaCodificada::rechazoTexto0(const QString& t0, bool desdeArchivo) const
{
    return motivoLargo(t0, 2, desdeArchivo ? d_.limite0 : sinTope, exportar::titulos(GR).value(0)); // one character is refused like none
}

qint32 ListaCodificada::insertarNuevo(QVariantList v)
{
    QSqlDatabase& db = M().Conexion;
    if (d_.clave.vacia()) {
        QSqlQuery q = ejecutar(db, d_.insertar.sql, d_.insertar.enlazar(M().IdEmp, v));
        return q.lastInsertId().toInt();
    }
    return insertarConClaveSiguiente(db, d_.clave.sql, d_.clave.enlazar(M().IdEmp), [&](qint32 clave) {
        v[2] = qint64(clave);
        ejecutar(db, d_.insertar.sql, d_.insertar.enlazar(M().IdEmp, v));
    });
}

QString ListaCodificada::rechazoImportacion(const QStringList& valores) const
{
    const QString r = rechazoTexto0(valores.value(0), true);
    return r.isEmpty() ? motivoLargo(valores.value(1), 0, d_.limite1, exportar::titulos(GR).value(1)) : r;
}

void ListaCodificada::insertarImportados(const QList<QStringList>& filas)
{
    QSqlDatabase& db = M().Conexion;
    leerConfirmado(db);
    Transaccion transaccion(db);
    for (const QStringList& fila : filas)
        insertarNuevo({fila.value(0), fila.value(1), qint64(0)});
    transaccion.confirmar();
}

void ListaCodificada::trasImportar()
{
    M().HuboCambios = true;
    operacion([this] { CargarLista(); });
}

void ListaCodificada::Quitar()
{
    if (CodigoActual < 1)
        return;
    QSqlDatabase& db = M().Conexion;
    if (!d_.referencia.vacia()) {
        QVariant usos;
        if (!operacion([&] {
                usos = M().servicios().ConsultarValor(db, d_.referencia.sql, d_.referencia.enlazar(M().IdEmp, valores()));
            }))
            return;
        if (usos.toLongLong() > 0) {
            MsgBox(this, d_.msgReferencia.arg(texto(0)), estilo::Exclamacion, u"AVISO"_s);
            return;
        }
    }
    if (MsgBox(this, d_.msgConfirmar.arg(texto(d_.campoConfirmar)), estilo::ExclamacionSiNo, u"CONFIRME"_s) != vbYes)
        return;
    if (!operacion([&] { ejecutar(db, d_.borrar.sql, d_.borrar.enlazar(M().IdEmp, valores())); }))
        return;
    M().HuboCambios = true;
    if (!operacion([this] { CargarLista(); }))
        return;
    Nuevo();
    MsgBox(this, u"La operación se realizó correctamente!"_s, estilo::Informacion, u"Listo"_s);
}

void ListaCodificada::Nuevo()
{
    CodigoActual = 0;
    mostrados_.clear();
    ponerTexto(0, QString());
    ponerTexto(1, QString());
    NuevoExtra();
    modo(true);
    Tx0_->setFocus();
    Bt_[1]->setEnabled(false);
    despuesDeNuevo();
}

void ListaCodificada::MostrarRegistro()
{
    // A pick needs a row with its key; anything else leaves the fields alone.
    const qint32 fila = GR->Row();
    if (fila < 0)
        return;
    const qint32 clave = GR->CellText(fila, d_.columnaClave).toInt();
    if (clave < 1)
        return;
    CodigoActual = clave;
    // Every field from the picked row, which stays selected; the texts shown
    // are the stored ones, whole.
    sinBuscar([&] {
        ponerTexto(0, GR->CellText(fila, 0));
        ponerTexto(1, GR->CellText(fila, 1));
        mostrarValor(0, texto(0));
        mostrarValor(1, texto(1));
        MostrarExtra(fila);
    });
    Tx0_->setFocus();
    Bt_[1]->setEnabled(true);
    modo(false);
    despuesDeMostrar();
}

} // namespace nomencla
