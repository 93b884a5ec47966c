// A minimal host: links the installed library, calls a method that opens no
// dialog and checks the public types.
#include <nomencla/clsNomencla.h>

#include <QApplication>
#include <QSqlDatabase>
#include <cstdio>

int main(int argc, char** argv)
{
    QApplication app(argc, argv);
    QSqlDatabase db = QSqlDatabase::addDatabase(QStringLiteral("QSQLITE"));
    db.setDatabaseName(QStringLiteral(":memory:"));
    if (!db.open())
        return 2;
    clsNomencla nomencla;
    InfoLotes lote;
    static_assert(sizeof(tipoLoteLS) == 4 && sizeof(TipoDocImpresion) == 4);
    static_assert(lsLotesTodos == 10 && impGuia == 10);
    const bool r = nomencla.ConfirmaUsuario(QStringLiteral("1"), db);
    std::printf("ConfirmaUsuario: %s, lote vacio: %s\n", r ? "true" : "false", lote.Lote.isEmpty() ? "si" : "no");
    return r ? 1 : 0;
}
