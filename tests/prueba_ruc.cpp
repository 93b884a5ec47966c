// The RUC/cédula check: valid numbers of each kind generated, then broken one
// digit at a time; company and public RUCs that fail the old modulo-11 checks
// are not pointed out.
#include "core/Ruc.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Qt::StringLiterals;
using nomencla::ruc::problema;

namespace {

// Province, third digit, then `n` random digits.
QString numero(QRandomGenerator& azar, int provincia, int tercero, int n)
{
    QString r = u"%1%2"_s.arg(provincia, 2, 10, QChar(u'0')).arg(tercero);
    for (int i = 0; i < n; ++i)
        r += QChar(u'0' + azar.bounded(10));
    return r;
}

// A cédula: nine digits and the modulo-10 check digit.
QString cedula(QRandomGenerator& azar, int provincia, int tercero)
{
    const QString nueve = numero(azar, provincia, tercero, 6);
    int suma = 0;
    for (int i = 0; i < 9; ++i) {
        const int p = nueve[i].digitValue() * (i % 2 == 0 ? 2 : 1);
        suma += p > 9 ? p - 9 : p;
    }
    return nueve + QString::number((10 - suma % 10) % 10);
}

// The modulo-11 check digit of older validators: companies (third digit 9)
// over nine digits, public entities (6) over eight.
bool pasaModulo11(const QString& ruc)
{
    static const int pesos[] = {4, 3, 2, 7, 6, 5, 4, 3, 2};
    const int n = ruc[2] == u'6' ? 8 : 9;
    int suma = 0;
    for (int i = 0; i < n; ++i)
        suma += ruc[i].digitValue() * pesos[i + 9 - n];
    return (11 - suma % 11) % 11 == ruc[n].digitValue();
}

QString cambiar(QString t, int i, int d)
{
    t[i] = QChar(u'0' + d);
    return t;
}

} // namespace

class PruebaRuc : public QObject {
    Q_OBJECT

private Q_SLOTS:
    // Cédulas of every province and third digit 0-6, the natural person's RUC
    // made of each, company and public RUCs: none is pointed out. Every single
    // digit changed in a cédula or in the cédula part of a natural RUC is.
    void generados_y_rotos()
    {
        QRandomGenerator azar(16);
        for (int provincia = 1; provincia <= 30; provincia = provincia == 24 ? 30 : provincia + 1) {
            for (int tercero = 0; tercero <= 6; ++tercero) {
                const QString c = cedula(azar, provincia, tercero);
                const QString ruc = c + u"001"_s;
                QVERIFY2(problema(c).isEmpty(), qPrintable(c));
                QVERIFY2(problema(ruc).isEmpty(), qPrintable(ruc)); // with 6, a public entity's: structure only
                for (int i = 0; i < 10; ++i) {
                    for (int d = 0; d <= 9; ++d) {
                        if (d == c[i].digitValue())
                            continue;
                        QVERIFY2(!problema(cambiar(c, i, d)).isEmpty(), qPrintable(cambiar(c, i, d)));
                        if (tercero <= 5 && !(i == 2 && (d == 6 || d == 9)))
                            QVERIFY2(!problema(cambiar(ruc, i, d)).isEmpty(), qPrintable(cambiar(ruc, i, d)));
                    }
                }
                if (tercero <= 5) {
                    QVERIFY(!problema(QString(c + u"000"_s)).isEmpty());
                    QVERIFY(problema(QString(c + u"002"_s)).isEmpty());
                }
            }
            for (int tercero : {6, 9}) {
                QString r;
                do // a company or public RUC that the old check refuses
                    r = numero(azar, provincia, tercero, tercero == 6 ? 6 : 7) + (tercero == 6 ? u"0001"_s : u"001"_s);
                while (pasaModulo11(r));
                QVERIFY2(problema(r).isEmpty(), qPrintable(r));
                // Structure only: any digit between the third and the establishment goes.
                for (int i = 3; i < 10; ++i)
                    QVERIFY(problema(cambiar(r, i, (r[i].digitValue() + 1) % 10)).isEmpty());
                QVERIFY(!problema(QString(r.left(10) + u"000"_s)).isEmpty());
                QVERIFY(!problema(cambiar(cambiar(r, 0, 2), 1, 5)).isEmpty()); // province 25
                QVERIFY(!problema(cambiar(r, 2, 7)).isEmpty());
                QVERIFY(!problema(cambiar(r, 2, 8)).isEmpty());
            }
        }
    }

    // Text that is not a 10- or 13-digit number is not judged; blanks around
    // a number are not part of it; the reason says what is wrong.
    void motivos()
    {
        const QList<std::pair<QString, QString>> casos{
            {QString(), {}}, {u"171234567"_s, {}}, {u"17123456789"_s, {}}, {u"17123456780011"_s, {}},
            {u"171234567-8"_s, {}}, {u"A1234567"_s, {}}, {u"900123456-7"_s, {}}, {u"١٧١٢٣٤٥٦٧٨"_s, {}},
            {u" 1710034065 "_s, {}}, {u"1710034064"_s, u"verificador"_s}, {u"2510034065"_s, u"provincia"_s},
            {u"1770034065"_s, u"tercer"_s}, {u"1710034065000"_s, u"establecimiento"_s},
            {u"1780034065001"_s, u"tercer"_s}, {u"1710034064001"_s, u"cédula"_s},
        };
        for (const auto& [texto, motivo] : casos) {
            const QString p = problema(texto);
            QVERIFY2(motivo.isEmpty() ? p.isEmpty() : p.contains(motivo), qPrintable(texto + u": "_s + p));
        }
    }
};

QTEST_GUILESS_MAIN(PruebaRuc)
#include "prueba_ruc.moc"
