#pragma once
// The cost of the dialogs' operations as the tenant grows and beside small
// or big tenants: nomencla-bench --socket PATH --operaciones.
#include <QString>
#include <QStringList>

int medirOperaciones(const QString& socket, const QStringList& argumentos);
