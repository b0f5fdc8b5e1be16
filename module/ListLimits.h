#ifndef LISTLIMITS_H
#define LISTLIMITS_H

#include <QtGlobal>

// How long a controller list may be before we stop asking about its items.
// The host already refuses counts beyond what a real system has (256 sensors
// or bodies is the largest); this is the plug-in's own guard for a host that
// does not, so that a broken count can never hold the GUI thread for long.
// Indices print as "d%.2d", which gives "d100" and beyond without trouble.
namespace ListLimits {

constexpr int MaxListLength = 256;

// A reported length as something safe to loop over: never negative, never
// beyond MaxListLength.
constexpr int bounded(int count)
{
    return qBound(0, count, MaxListLength);
}

} // namespace ListLimits

#endif // LISTLIMITS_H
