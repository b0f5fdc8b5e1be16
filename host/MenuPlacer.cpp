#include "MenuPlacer.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>

namespace {

const char PositionProperty[] = "norvane_position";

} // namespace

MenuPlacer::MenuPlacer(QMenuBar* menu_bar) : bar(menu_bar)
{
}

int MenuPlacer::position_of(const QAction* action)
{
    const QVariant position = action->property(PositionProperty);
    return position.isValid() ? position.toInt() : 0;
}

void MenuPlacer::adopt(QMenu* menu, int position)
{
    menu->menuAction()->setProperty(PositionProperty, position);
    if (!menus.contains(menu))
        menus << menu;
}

QMenu* MenuPlacer::menu(const QString& title, int position)
{
    for (QMenu* existing : qAsConst(menus))
        if (existing->title() == title)
            return existing;

    auto* created = new QMenu(title, bar);
    created->menuAction()->setProperty(PositionProperty, position);
    QAction* before = nullptr;
    for (QAction* action : bar->actions()) {
        if (position_of(action) > position) {
            before = action;
            break;
        }
    }
    bar->insertMenu(before, created);
    menus << created;
    return created;
}

void MenuPlacer::place(QMenu* menu, QAction* action, int position)
{
    action->setProperty(PositionProperty, position);
    QAction* before = nullptr;
    for (QAction* existing : menu->actions()) {
        if (existing != action && position_of(existing) > position) {
            before = existing;
            break;
        }
    }
    menu->insertAction(before, action);
}

void MenuPlacer::update_enabled()
{
    for (QMenu* menu : qAsConst(menus)) {
        bool any = false;
        for (QAction* action : menu->actions())
            any = any || (!action->isSeparator() && action->isVisible());
        menu->menuAction()->setEnabled(any);
    }
}
