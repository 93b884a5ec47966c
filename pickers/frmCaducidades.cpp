#include "pickers/frmCaducidades.h"

#include "core/Alfarje.h"
#include "core/Controles.h"
#include "core/Module1.h"
#include "core/clsGrillas.h"

#include <QDate>
#include <QGridLayout>
#include <QHBoxLayout>
#include <cmath>

using namespace Qt::StringLiterals;

namespace nomencla {

namespace {
// The start of a lot number as a LIKE pattern: '%' and '_' typed by the user
// are taken literally (escaped with the default escape character).
QString patronInicio(const QString& texto)
{
    QString r;
    r.reserve(texto.size() + 1);
    for (const QChar c : texto) {
        if (c == u'\\' || c == u'%' || c == u'_')
            r += u'\\';
        r += c;
    }
    return r + u'%';
}
} // namespace

frmCaducidades::frmCaducidades() : Formulario(u"frmCaducidades"_s, u"Lista de caducidades"_s, true) {}

void frmCaducidades::Disenar(QWidget* lienzo)
{
    auto* rejilla = new QGridLayout(lienzo);

    auto* etiqueta = new Etiqueta(u"Buscar lote:"_s, lienzo);
    etiqueta->setObjectName(u"Label1"_s);
    Text1 = new CajaTexto(lienzo, 25);
    Text1->setObjectName(u"Text1"_s);
    etiqueta->setBuddy(Text1);

    Chk[0] = new Casilla(u"que caduquen el:"_s, lienzo);
    DT = new SelectorFecha(u"dd-MMM-yyyy"_s, lienzo);
    DT->setObjectName(u"DT"_s);
    DT->setValue(QDate(2019, 2, 17));
    Chk[1] = new Casilla(u"Mostar con cantidad cero"_s, lienzo);
    for (int i = 0; i < 2; ++i)
        Chk[i]->setObjectName(u"Chk(%1)"_s.arg(i));

    GR = new Alfarje(lienzo);
    GR->setObjectName(u"GR"_s);
    GR->setFormatocolumnas(
        u"<LOTE                  |^CANT.   |<FECHA CADUC.  |<NOMBRE DEL PROVEEDOR                 |."_s);
    GR->setSearchcolumn(-1);
    GR->setShowrownumbers(true);
    GR->setTotalslineshow(false);
    // Expiry in the short Ecuadorian form, which fits its column whatever the month.
    GR->setColumnFormat(2, u"dd/MM/yyyy"_s);
    GR->setMinimumSize(560, 300);

    auto* filtros = new QHBoxLayout;
    filtros->addWidget(etiqueta);
    filtros->addWidget(Text1, 1);
    filtros->addSpacing(12);
    filtros->addWidget(Chk[0]);
    filtros->addWidget(DT);
    filtros->addSpacing(12);
    filtros->addWidget(Chk[1]);
    rejilla->addLayout(filtros, 0, 0);
    rejilla->addWidget(GR, 1, 0);

    setTabOrder(Text1, Chk[0]);
    setTabOrder(Chk[0], DT);
    setTabOrder(DT, Chk[1]);
    setTabOrder(Chk[1], GR);

    connect(Text1, &CajaTexto::Change, this, [this] { CargarLista(); });
    for (Casilla* c : Chk)
        connect(c, &Casilla::Click, this, [this] { CargarLista(); });
    connect(Text1, &CajaTexto::KeyUp, this, [this](int KeyCode, int) {
        if (KeyCode == vbKeyDown && GR->RowCount() > 0) {
            GR->setFocus();
            // Arriving in the grid puts the user on its first row, ready for Enter.
            if (GR->Row() < 0)
                GR->setRow(0);
        }
    });
    // Enter on a row picks it as the double click does (the grid's own).
    connect(GR, &Alfarje::Click, this, [this] { GR_Click(); });
    Text1->setFocus();
}

void frmCaducidades::Form_Load()
{
    ArticuloElegido = M().ValorDocumento;
    M().ValorDocumento = 0;

    FiltroBase = {};
    const qint32 tipo = M().TipoLoteElegido;
    if (tipo == lsLotesValidos) {
        FiltroBase.sql = u" AND A.est in (1,3)"_s;
    } else if (tipo < lsLotesTodos) {
        FiltroBase.sql = u" AND A.est=?"_s;
        FiltroBase.valores.append(qint64(tipo));
    }
    if (M().BodegaElegida > 0) {
        FiltroBase.sql += u" AND A.bod=?"_s;
        FiltroBase.valores.append(qint64(M().BodegaElegida));
    }
    CargarLista();
}

void frmCaducidades::CargarLista()
{
    QString sql = u"SELECT A.lot, A.can, A.fec, P.nom, A.cod FROM martexpira A LEFT OUTER JOIN mproveedor P ON A.pro = P.cod WHERE A.art = ?"_s;
    QVariantList valores{qint64(ArticuloElegido)};
    sql += FiltroBase.sql;
    valores += FiltroBase.valores;
    // The lot's start as typed, blanks included.
    if (!Text1->text().isEmpty()) {
        sql += u" AND A.lot LIKE ? "_s;
        valores.append(patronInicio(Text1->text()));
    }
    sql += Chk[0]->Value() == 1 ? u" AND A.fec=? "_s : u" AND A.fec>=? "_s;
    valores.append(DT->Value());
    if (Chk[1]->Value() != 1)
        sql += u" AND A.can>0"_s;
    sql += u" ORDER BY A.lot"_s;
    operacion([&] { M().grillas().LlenarGrilla(M().Conexion, GR, sql, valores, u"lot,can,fec,nom,cod"_s, false, true); });
}

void frmCaducidades::GR_Click()
{
    // Without a current row nothing is chosen and the dialog stays open.
    const qint32 fila = GR->Row();
    if (fila < 0 || fila >= GR->RowCount())
        return;
    const auto cod = static_cast<qint32>(std::llround(GR->CellValue(fila, 4)));
    if (cod <= 0)
        return;
    M().ValorDocumento = cod;
    Unload();
}

} // namespace nomencla
