#include "company/frmEmpresas.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"
#include "core/Pulsante.h"
#include "core/clsGrillas.h"
#include "core/clsServicios.h"

#include <QFileInfo>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QImageReader>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {

const QString activCampos = u"emp,activ,art,selec,suc,act,cod,dir,tel,ciu,prov,nart"_s;
const QStringList actividades{u"Comercio general"_s,        u"Farmacia"_s,
                              u"Gasolinera"_s,              u"Hotel"_s,
                              u"Catering"_s,                u"Venta con tickets"_s,
                              u"Servicios profesionales"_s, u"Talleres y reparaciones"_s,
                              u"Transporte público"_s};

} // namespace

CuadroImagen::CuadroImagen(QWidget* parent) : QLabel(parent)
{
    setFrameShape(QFrame::StyledPanel);
    setFrameShadow(QFrame::Sunken);
    setAlignment(Qt::AlignCenter);
    setFixedSize(180, 140);
    setFocusPolicy(Qt::StrongFocus);
    setCursor(Qt::PointingHandCursor);
}

void CuadroImagen::mostrar(const QImage& imagen)
{
    if (imagen.isNull()) {
        setPixmap(QPixmap());
        return;
    }
    setPixmap(QPixmap::fromImage(imagen.scaled(contentsRect().size() - QSize(4, 4), Qt::KeepAspectRatio,
                                               Qt::SmoothTransformation)));
}

bool CuadroImagen::vacio() const
{
    return pixmap().isNull();
}

void CuadroImagen::mouseReleaseEvent(QMouseEvent* evento)
{
    QLabel::mouseReleaseEvent(evento);
    if (evento->button() == Qt::LeftButton && rect().contains(evento->position().toPoint()))
        Q_EMIT Click();
}

void CuadroImagen::keyPressEvent(QKeyEvent* evento)
{
    if (evento->key() == Qt::Key_Space || evento->key() == Qt::Key_Return || evento->key() == Qt::Key_Enter) {
        Q_EMIT Click();
        return;
    }
    QLabel::keyPressEvent(evento);
}

frmEmpresas::frmEmpresas()
    : EstructuraEmpresa({u"frmEmpresas"_s, u"Empresas"_s, u"CREANDO NUEVA EMPRESA"_s, u"MODIFICANDO EMPRESA EXISTENTE"_s,
                         u"UPDATE Empresas SET est=0 WHERE cod=? AND id=?"_s, u"la Empresa"_s, 0, {}, {}})
{
}

QString frmEmpresas::T(int indice) const
{
    return Tx[indice]->text().trimmed();
}

void frmEmpresas::Disenar(QWidget* lienzo)
{
    Tx.clear();
    auto* raiz = new QVBoxLayout(lienzo);
    auto* arriba = new QHBoxLayout;
    auto* campos = new QGridLayout;

    auto* tx0 = crearTx(lienzo, 0, 120);
    Combo4 = new Combo(lienzo);
    Combo4->setObjectName(u"Combo4"_s);
    for (const QString& a : actividades)
        Combo4->addItem(a, 0);
    Combo4->setCurrentIndex(-1);
    // The number of branches is kept with the company but not shown.
    auto* tx1 = crearTx(lienzo, 1, 25, true);
    tx1->setText(u"1"_s);
    tx1->setVisible(false);
    auto* tx2 = crearTx(lienzo, 2, 120);
    auto* tx3 = crearTx(lienzo, 3, 12);
    auto* tx4 = crearTx(lienzo, 4, 25);
    auto* tx5 = crearTx(lienzo, 5, 50);
    Check1[0] = new Casilla(u"Servicios electrónicos"_s, lienzo);
    Check1[0]->setObjectName(u"Check1(0)"_s);
    Check1[1] = new Casilla(u"Artesano calificado No"_s, lienzo);
    Check1[1]->setObjectName(u"Check1(1)"_s);
    auto* tx6 = crearTx(lienzo, 6, 25);
    auto* etiquetaSuc = crearEtiqueta(lienzo, 2, u"N&um. sucursales:"_s, tx1);
    etiquetaSuc->setVisible(false);

    campos->addWidget(crearEtiqueta(lienzo, 5, u"Empresa:"_s, tx0), 0, 0);
    campos->addWidget(tx0, 0, 1, 1, 3);
    campos->addWidget(crearEtiqueta(lienzo, 1, u"&Tipo actividad:"_s, Combo4), 1, 0);
    campos->addWidget(Combo4, 1, 1);
    campos->addWidget(etiquetaSuc, 1, 2);
    campos->addWidget(tx1, 1, 3);
    campos->addWidget(crearEtiqueta(lienzo, 3, u"Dirección matriz:"_s, tx2), 2, 0);
    campos->addWidget(tx2, 2, 1, 1, 3);
    campos->addWidget(crearEtiqueta(lienzo, 4, u"Teléfono:"_s, tx3), 3, 0);
    campos->addWidget(tx3, 3, 1);
    campos->addWidget(crearEtiqueta(lienzo, 6, u"Ciudad:"_s, tx4), 3, 2);
    campos->addWidget(tx4, 3, 3);
    campos->addWidget(crearEtiqueta(lienzo, 7, u"Provicia:"_s, tx5), 4, 0);
    campos->addWidget(tx5, 4, 1);
    campos->addWidget(Check1[0], 5, 0, 1, 2);
    auto* artesano = new QHBoxLayout;
    artesano->addWidget(Check1[1]);
    artesano->addWidget(tx6, 1);
    campos->addLayout(artesano, 5, 2, 1, 2);
    campos->setColumnStretch(1, 1);
    campos->setColumnStretch(3, 1);
    campos->setColumnMinimumWidth(1, 200);
    campos->setColumnMinimumWidth(3, 160);

    P1 = new CuadroImagen(lienzo);
    P1->setObjectName(u"P1"_s);
    P1->setToolTip(u"Clic para elegir el logo (JPG o PNG, hasta 4 MB)"_s);
    P1->setAccessibleName(u"Logo"_s);
    connect(P1, &CuadroImagen::Click, this, &frmEmpresas::P1_Click);
    auto* logo = new QVBoxLayout;
    logo->addWidget(crearEtiqueta(lienzo, 8, u"Logo"_s, P1));
    logo->addWidget(P1);
    logo->addStretch();

    arriba->addLayout(campos, 1);
    arriba->addSpacing(8);
    arriba->addLayout(logo);

    disponer(lienzo, raiz, arriba,
             u"< EMPRESA                                           |<ACTIVIDAD           |^ARTESANO |^SERV. ELEC.|.|.|.|.|.|.|.|.|.|."_s,
             u"&Lista de sucursales registradas"_s, {tx0, Combo4, tx2, tx3, tx4, tx5, Check1[0], Check1[1], tx6, P1});
}

void frmEmpresas::Form_Load()
{
    CodigoActual = 0;
    CargarLista();
    M().HuboCambios = false;
    GR->setColumnKind(2, 3);
    GR->setColumnKind(3, 3);
    LogoElegido = false;
}

bool frmEmpresas::CargarLista()
{
    // An activity outside the list (-1 when none was chosen) shows its number.
    const ExpresionSql actividad = M().servicios().ExpresionCaso(
        u"act"_s, u"0,1,2,3,4,5,6,7,8"_s,
        u"Comercio General,Farmacia,Gasolinera,Hotel,Catering,Venta con tickets,Servicios profesionales,"
        u"Talleres y reparaciones,Transporte público"_s,
        0);
    QVariantList valores = actividad.valores;
    valores.append(M().IdEmp);
    const QString sql = u"SELECT emp,"_s + actividad.texto
        + u" AS activ,art,selec,suc,act,cod,dir,tel,ciu,prov,nart FROM Empresas WHERE  id=? AND est<>0 ORDER BY emp"_s;
    return operacion([&] { M().grillas().LlenarGrilla(M().Conexion, GR, sql, valores, activCampos, false, true); });
}

bool frmEmpresas::Validar()
{
    struct Campo {
        int indice;
        QString mensaje;
    };
    const Campo obligatorios[] = {{0, u"Debe especificar el nombre de la empresa (Nombre comercial)"_s},
                                  {2, u"Debe especificar la dirección matriz"_s},
                                  {3, u"Debe especificar el número de teléfono"_s},
                                  {4, u"Debe especificar la ciudad"_s},
                                  {5, u"Debe especificar la provincia"_s}};
    for (const Campo& c : obligatorios) {
        if (T(c.indice).isEmpty()) {
            MsgBox(this, c.mensaje, estilo::Critico, u"Aviso"_s);
            return false;
        }
    }
    if (T(1).toDouble() == 0.0) {
        MsgBox(this, u"Debe especificar la cantidad de sucursales"_s, estilo::Critico, u"Aviso"_s);
        return false;
    }
    return true;
}

bool frmEmpresas::Escribir()
{
    QSqlDatabase& db = M().Conexion;
    const QString& idEmp = M().IdEmp;
    const qint64 sucursales = qint64(T(1).toDouble());
    QVariant actividad = qint64(Combo4->ListIndex());
    QVariant servicios = qint64(Check1[0]->Value());
    QVariant artesano = qint64(Check1[1]->Value());
    if (CodigoActual > 0) {
        actividad = actividad_.valor(actividad.toString(), actividad);
        servicios = servicios_.valor(servicios.toString(), servicios);
        artesano = artesano_.valor(artesano.toString(), artesano);
    }
    qint32 CodigoNuevo = CodigoActual;
    logoFallido_ = false;

    if (CodigoActual <= 0) {
        // Names are unique among the active companies of every tenant.
        const QVariant iguales = M().servicios().ConsultarValor(
            db, u"SELECT EXISTS(SELECT cod FROM empresas WHERE est=1 AND emp=?) AS tot"_s, {T(0)});
        if (iguales.toLongLong() != 0) {
            MsgBox(this, u"Ya existe una empresa con ese nombre!"_s, estilo::Critico, u"Aviso"_s);
            return false;
        }
        QSqlQuery q = ejecutar(db,
                               u"INSERT INTO empresas (ID,emp,act,suc,selec,art,est,dir,tel,ciu,prov,nart) VALUES "
                               u"(?,?,?,?,?,?,1,?,?,?,?,?)"_s,
                               {idEmp, T(0), actividad, sucursales, servicios, artesano, T(2), T(3), T(4), T(5), T(6)});
        QVariant clave = q.lastInsertId();
        if (!clave.isValid())
            clave = consultarValor(db, u"SELECT LAST_INSERT_ID() AS cod"_s);
        CodigoNuevo = clave.toInt();
    } else {
        // The company and the name of its branches change together or not at all.
        Transaccion transaccion(db);
        // The branches carry the name the company has now: another clerk may
        // have renamed it since this one picked it.
        const QVariant nombre = consultarValor(db, u"SELECT emp FROM empresas WHERE cod=? AND id=? FOR UPDATE"_s,
                                               {CodigoActual, idEmp});
        ejecutar(db,
                 u"UPDATE empresas SET emp=?,suc=?, act=?, selec=?, art=?, dir=?,tel=?,ciu=?,prov=?, nart=? "
                 u"WHERE cod=? AND id=?"_s,
                 {valorTx(0), sucursales, actividad, servicios, artesano, valorTx(2), valorTx(3), valorTx(4),
                  valorTx(5), valorTx(6), CodigoActual, idEmp});
        // The branches follow a new name (those written as the old one in
        // another case too); a name left as it was rewrites none of them.
        const QString anterior = nombre.isNull() ? NombreAnterior : nombre.toString();
        if (valorTx(0).toString() != anterior)
            ejecutar(db, u"UPDATE sucursales SET emp=? WHERE id=? AND emp=?"_s, {valorTx(0), idEmp, anterior});
        transaccion.confirmar();
    }

    if (!RutaLogo.isEmpty() && LogoElegido)
        logoFallido_ = !M().grillas().GuardarImagen(db, u"empresas"_s, u"logo"_s, u"cod"_s, CodigoNuevo, RutaLogo, idEmp);
    return true;
}

void frmEmpresas::trasEscribir()
{
    if (logoFallido_)
        MsgBox(this, u"La imagen del logo no pudo ser guardada"_s, estilo::Exclamacion, QString());
}

bool frmEmpresas::PuedeQuitar()
{
    // A company's name is unique across tenants, so its branches are counted in all of them.
    const QVariant sucursales = M().servicios().ConsultarValor(
        M().Conexion, u"SELECT EXISTS(SELECT cod FROM sucursales WHERE est=1 AND emp=?) AS tot"_s, {T(0)});
    if (sucursales.toLongLong() != 0) {
        MsgBox(this, u"No se puede eliminar la empresa ya que existen sucursales asignadas a ella"_s, estilo::Critico,
               u"Aviso"_s);
        return false;
    }
    if (GR->RowCount() <= 1) {
        MsgBox(this, u"No se puede eliminar esta empresa ya que debe haber al menos una empresa activa!"_s,
               estilo::Critico, u"Aviso"_s);
        return false;
    }
    return true;
}

void frmEmpresas::limpiarCampos()
{
    Tx[0]->setText(QString());
    Tx[1]->setText(u"1"_s);
    for (int i = 2; i <= 6; ++i)
        Tx[i]->setText(QString());
    LogoElegido = false;
    NombreAnterior.clear();
    Check1[0]->setValue(0);
    Check1[1]->setValue(0);
}

void frmEmpresas::MostrarRegistro()
{
    const qint32 fila = GR->Row();
    CodigoActual = qint32(GR->CellValue(fila, 6));
    const int actividad = int(GR->CellValue(fila, 5));
    Combo4->setListIndex(actividad >= 0 && actividad < Combo4->ListCount() ? actividad : -1);
    Tx[1]->setText(QString::number(qint64(GR->CellValue(fila, 4))));
    Tx[0]->setText(GR->CellText(fila, 0));
    for (int i = 2; i <= 6; ++i)
        Tx[i]->setText(GR->CellText(fila, i + 5));
    Check1[0]->setValue(int(GR->CellValue(fila, 3)));
    Check1[1]->setValue(int(GR->CellValue(fila, 2)));
    actividad_.mostrar(QString::number(Combo4->ListIndex()), qint64(GR->CellValue(fila, 5)));
    servicios_.mostrar(QString::number(Check1[0]->Value()), qint64(GR->CellValue(fila, 3)));
    artesano_.mostrar(QString::number(Check1[1]->Value()), qint64(GR->CellValue(fila, 2)));
    NombreAnterior = GR->CellText(fila, 0);
    // The stored logo is shown with its company, unless a file chosen for the
    // next save is waiting: that one stays in view.
    if (!LogoElegido)
        operacion([&] {
            const QVariant logo = consultarValor(M().Conexion, u"SELECT logo FROM empresas WHERE cod=? AND id=?"_s,
                                                 {CodigoActual, M().IdEmp});
            P1->mostrar(QImage::fromData(logo.toByteArray()));
        });
    Tx[0]->setFocus();
    modoExistente(CodigoActual > 1);
}

void frmEmpresas::P1_Click()
{
    const QString archivo = elegirArchivo(this, u"Seleccionar logo"_s, u"Imágenes (*.jpg *.jpeg *.png)"_s);
    if (archivo.isEmpty()) {
        // A cancelled choice drops the file chosen before.
        P1->mostrar(QImage());
        LogoElegido = false;
        RutaLogo.clear();
        return;
    }
    // A refused file leaves the earlier choice as it was.
    const qint64 tamano = QFileInfo(archivo).size();
    if (tamano > clsGrillas::tamanoMaximoImagen) {
        MsgBox(this,
               u"La imagen elegida ocupa "_s + localeEcuador().toString(double(tamano) / (1024.0 * 1024.0), 'f', 1)
                   + u" MB y el logo admite como máximo 4 MB. Elija una imagen más liviana."_s,
               estilo::Exclamacion, u"Aviso"_s);
        return;
    }
    QImageReader lector(archivo);
    const QImage imagen = lector.read();
    if (imagen.isNull()) {
        MsgBox(this, u"El archivo elegido no es una imagen que se pueda leer. Elija un archivo JPG o PNG."_s,
               estilo::Exclamacion, u"Aviso"_s);
        return;
    }
    P1->mostrar(imagen);
    LogoElegido = true;
    RutaLogo = archivo;
}

} // namespace nomencla
