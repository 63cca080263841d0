#pragma once

#include "ports/Controls.h"

#include <QHash>

class QAction;
class QLabel;
class QMainWindow;
class QToolBar;
class QWidget;

namespace sw::qt {

// The menu items, toolbar buttons and labels of the main form by their names.
class QtControls : public Controls {
public:
    explicit QtControls(QMainWindow* form) : form_(form) {}

    void Register(Item item, QAction* action) { actions_.insert(item, action); }
    void Register(Item item, QWidget* widget) { widgets_.insert(item, widget); }
    void RegisterToolbarButton(int index, QAction* action) { buttons_.insert(index, action); }

    void SetEnabled(Item item, bool enabled) override;
    void SetChecked(Item item, bool checked) override;
    bool Checked(Item item) const override;
    void SetVisible(Item item, bool visible) override;
    void SetCaption(Item item, const std::string& caption) override;
    void SetToolbarButtonEnabled(int index, bool enabled) override;

private:
    QMainWindow* form_;
    QHash<Item, QAction*> actions_;
    QHash<Item, QWidget*> widgets_;
    QHash<int, QAction*> buttons_;
};

} // namespace sw::qt
