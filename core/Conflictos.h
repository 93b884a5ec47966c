#pragma once
// What a user operation does when the database refuses it because another
// session wrote the same rows at the same time.
//
// On one server two clerks meet in a deadlock, or on the same MAX(cod)+1 key.
// On a Galera cluster every node takes writes and each commit is certified
// cluster-wide: a save that touched rows another node committed first is
// refused with a deadlock (1213) at its commit, or at its next statement when
// the other node's write reached this one before. Either way the operation
// wrote nothing (its transaction was rolled back), so it is run again from its
// start, reading anew. A node that has left the primary component (1047) or a
// lost connection is not a conflict: another run would fail the same way or
// could write twice, so it is shown.
#include <QSqlError>
#include <QtGlobal>
#include <functional>

namespace nomencla {

class ErrorBD;

// How many times in all an operation is run before its conflict is shown.
constexpr int intentosPorConflicto = 12;

// The database refused the operation for a concurrent write elsewhere.
bool esConflicto(const ErrorBD& error);

// The node the connection reaches is out of the cluster's primary component.
bool esNodoFueraDelGrupo(const QSqlError& error);

// Runs `operacion` (a whole user operation, its transaction inside) and, when
// it fails with a conflict, runs it again after a short random pause that
// grows, up to `intentos` runs in all; the last failure, or any other, is
// thrown. The operation must be safe to run again: what it changes outside
// the database it changes after its last statement, or resets at its start.
void conReintentos(const std::function<void()>& operacion, int intentos = intentosPorConflicto);

// Conflicts met by conReintentos in this process (each one rerun or shown).
quint64 conflictosVistos();

} // namespace nomencla
