#include "pickers/frmPendientes.h"

#include "core/Alfarje.h"
#include "core/BaseDatos.h"
#include "core/Controles.h"
#include "core/Mensajes.h"
#include "core/Module1.h"

#include <QVBoxLayout>
#include <limits>

using namespace Qt::StringLiterals;

namespace nomencla {

frmPendientes::frmPendientes() : Formulario(u"frmPendientes"_s, u"Lista de comprobantes no guardados"_s, true) {}

void frmPendientes::Disenar(QWidget* lienzo)
{
    auto* disposicion = new QVBoxLayout(lienzo);
    GR = new Alfarje(lienzo);
    GR->setObjectName(u"GR"_s);
    GR->setFormatocolumnas(u"<CODIGO REF.   |<NUMERO COMPROBANTE |."_s);
    GR->setShowrownumbers(true);
    GR->setTotalslineshow(false);
    GR->setMinimumSize(340, 300);
    disposicion->addWidget(GR);
    connect(GR, &Alfarje::Click, this, [this] { Elegir(); });
    GR->setFocus();
}

void frmPendientes::Form_Load()
{
    M().ValorDocumento = 0;
    GR->setRedraw(false);
    // Before any call has stored a company the key is empty text, not NULL:
    // the documents kept with an empty key are then the ones listed.
    const QString idEmp = M().IdEmp.isNull() ? u""_s : M().IdEmp;
    operacion([&] {
        // No ORDER BY: the rows come in the store's own order.
        QSqlQuery q = ejecutar(M().ConexionAcces, u"SELECT distinct cod, numdoc from BkUpfac WHERE id=? AND tip=?"_s,
                               {idEmp, qint64(M().TipoPendiente)});
        while (q.next())
            GR->AddItem(q.value(0).toString() + u'\t' + q.value(1).toString());
        if (q.lastError().isValid())
            throw ErrorBD(q.lastError());
    });
    GR->setRedraw(true);
    GR->setRow(0);
}

void frmPendientes::Elegir()
{
    // An empty list (no row selected) gives 0, like Esc.
    const qint32 fila = GR->Row();
    if (fila < 0) {
        M().ValorDocumento = 0;
        Unload();
        return;
    }
    // The second store may hold any key: one that isn't a whole number of 32
    // bits is not handed back cut or rounded; the clerk is told and the list stays.
    const QString texto = GR->CellText(fila, 0);
    bool entero = false;
    const qint64 clave = texto.toLongLong(&entero);
    if (!entero || clave < std::numeric_limits<qint32>::min() || clave > std::numeric_limits<qint32>::max()) {
        const QString numero = GR->CellText(fila, 1);
        const QString documento = numero.isEmpty() ? u"Este comprobante"_s : u"El comprobante "_s + numero;
        const QString motivo = texto.isEmpty() ? u"no tiene código de referencia."_s
                                               : u"su código de referencia (%1) no es un número entero entre "
                                                 "-2147483648 y 2147483647."_s.arg(texto);
        MsgBox(this, documento + u" no se puede elegir: "_s + motivo, estilo::Exclamacion, u"Aviso"_s);
        GR->setFocus();
        return;
    }
    M().ValorDocumento = qint32(clave);
    Unload();
}

void frmPendientes::Form_KeyPress(int& KeyAscii)
{
    if (KeyAscii == vbKeyReturn) {
        KeyAscii = 0;
        Elegir();
    } else if (KeyAscii == vbKeyEscape) {
        KeyAscii = 0;
        M().ValorDocumento = 0;
        Unload();
    }
}

} // namespace nomencla
