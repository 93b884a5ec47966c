// The RUC/cédula check: valid numbers of each kind generated, then broken one
// digit at a time; company and public RUCs that fail the old modulo-11 checks
// are not pointed out.
#include "core/Ruc.h"

#include <QRandomGenerator>
#include <QtTest>

using namespace Qt::StringLiterals;
using nomencla::ruc::problema;

namespace {

QString conVerificador(const QString& nueve)
{
    int suma = 0;
    for (int i = 0; i < 9; ++i) {
        int p = nueve[i].digitValue() * (i % 2 == 0 ? 2 : 1);
        suma += p > 9 ? p - 9 : p;
    }
    return nueve + QString::number((10 - suma % 10) % 10);
}

QString digitos(QRandomGenerator& azar, int n)
{
    QString r;
    for (int i = 0; i < n; ++i)
        r += QChar(u'0' + azar.bounded(10));
    return r;
}

QString cedula(QRandomGenerator& azar, int provincia, int tercero)
{
    return conVerificador(u"%1"_s.arg(provincia, 2, 10, QChar(u'0')) + QString::number(tercero) + digitos(azar, 6));
}

// The modulo-11 check digit of older validators: companies over nine digits,
// public entities over eight.
bool pasaModulo11(const QString& ruc)
{
    static const int sociedad[] = {4, 3, 2, 7, 6, 5, 4, 3, 2};
    static const int publica[] = {3, 2, 7, 6, 5, 4, 3, 2};
    const bool esPublica = ruc[2] == u'6';
    const int n = esPublica ? 8 : 9;
    int suma = 0;
    for (int i = 0; i < n; ++i)
        suma += ruc[i].digitValue() * (esPublica ? publica[i] : sociedad[i]);
    const int resto = suma % 11;
    const int dv = resto == 0 ? 0 : 11 - resto;
    return dv == ruc[n].digitValue();
}

// A company (9) or public (6) RUC that the old check refuses.
QString rucSinModulo11(QRandomGenerator& azar, int provincia, int tercero)
{
    for (;;) {
        const QString base = u"%1"_s.arg(provincia, 2, 10, QChar(u'0')) + QString::number(tercero);
        const QString r = tercero == 6 ? base + digitos(azar, 6) + u"0001"_s : base + digitos(azar, 7) + u"001"_s;
        if (!pasaModulo11(r))
            return r;
    }
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
        QList<int> provincias;
        for (int p = 1; p <= 24; ++p)
            provincias.append(p);
        provincias.append(30);
        for (int provincia : provincias) {
            for (int tercero = 0; tercero <= 6; ++tercero) {
                const QString c = cedula(azar, provincia, tercero);
                QVERIFY2(problema(c).isEmpty(), qPrintable(c));
                const QString ruc = c + u"001"_s;
                QVERIFY2(problema(ruc).isEmpty(), qPrintable(ruc)); // with 6, a public entity's: structure only
                for (int i = 0; i < 10; ++i) {
                    for (int d = 0; d <= 9; ++d) {
                        if (d == c[i].digitValue())
                            continue;
                        QVERIFY2(!problema(cambiar(c, i, d)).isEmpty(), qPrintable(cambiar(c, i, d)));
                        const QString rotoRuc = cambiar(ruc, i, d);
                        if (tercero <= 5 && !(i == 2 && (d == 6 || d == 9)))
                            QVERIFY2(!problema(rotoRuc).isEmpty(), qPrintable(rotoRuc));
                    }
                }
                if (tercero <= 5) {
                    QVERIFY(!problema(QString(c + u"000"_s)).isEmpty());
                    QVERIFY(problema(QString(c + u"002"_s)).isEmpty());
                }
            }
            for (int tercero : {6, 9}) {
                const QString r = rucSinModulo11(azar, provincia, tercero);
                QVERIFY2(!pasaModulo11(r), qPrintable(r));
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

    void no_juzgados_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::newRow("vacío") << QString();
        QTest::newRow("nueve dígitos") << u"171234567"_s;
        QTest::newRow("once dígitos") << u"17123456789"_s;
        QTest::newRow("catorce dígitos") << u"17123456780011"_s;
        QTest::newRow("con guion") << u"171234567-8"_s;
        QTest::newRow("pasaporte") << u"A1234567"_s;
        QTest::newRow("NIT extranjero") << u"900123456-7"_s;
        QTest::newRow("dígitos no latinos") << u"١٧١٢٣٤٥٦٧٨"_s;
    }

    void no_juzgados()
    {
        QFETCH(QString, texto);
        QVERIFY(problema(texto).isEmpty());
    }

    // Blanks around the number are not part of it; the reason says what is wrong.
    void motivos()
    {
        QVERIFY(problema(u" 1710034065 "_s).isEmpty());
        QVERIFY(problema(u"1710034064"_s).contains(u"verificador"_s));
        QVERIFY(problema(u"2510034065"_s).contains(u"provincia"_s));
        QVERIFY(problema(u"1770034065"_s).contains(u"tercer"_s));
        QVERIFY(problema(u"1710034065000"_s).contains(u"establecimiento"_s));
        QVERIFY(problema(u"1780034065001"_s).contains(u"tercer"_s));
        QVERIFY(problema(u"1710034064001"_s).contains(u"cédula"_s));
    }
};

QTEST_GUILESS_MAIN(PruebaRuc)
#include "prueba_ruc.moc"
