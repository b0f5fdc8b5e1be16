#ifndef MENUPLACER_H
#define MENUPLACER_H

#include <QList>
#include <QString>

class QAction;
class QMenu;
class QMenuBar;

// Orders a menu bar by position keys: menus by their position in the bar,
// actions by their position within a menu, host entries and module entries
// alike. A module naming a menu the host has (same title, "&Settings") gets
// that menu; a new title makes a new menu in its place.
class MenuPlacer
{
public:
    explicit MenuPlacer(QMenuBar* bar);

    // Takes a menu the bar already shows (from the form) at its position.
    void adopt(QMenu* menu, int position);
    // The menu with this title, made and placed if there is none.
    QMenu* menu(const QString& title, int position);
    // Puts the action among the menu's actions by its position; equal
    // positions keep the order in which they came.
    void place(QMenu* menu, QAction* action, int position);
    // A menu with nothing to offer is greyed out rather than opening empty.
    void update_enabled();

    static int position_of(const QAction* action);

private:
    QMenuBar* bar;
    QList<QMenu*> menus;
};

#endif // MENUPLACER_H
