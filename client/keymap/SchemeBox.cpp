#include "keymap/SchemeBox.h"

#include "widgets/OvComboBoxEditableItem.h"
#include "widgets/OvComboBoxListView.h"

#include <QIcon>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QWheelEvent>

namespace {

const char MapIdProperty[] = "map_id";
constexpr int ButtonExtent = 18; // device-independent pixels

QString buttonStyle()
{
    return QStringLiteral("QPushButton { border: none; border-radius: 3px; background: transparent; }"
                          "QPushButton:hover { background: #606266; }"
                          "QPushButton:pressed { background: #303133; }");
}

} // namespace

SchemeBox::SchemeBox(QWidget *parent)
    : OvComboBox(parent)
{
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::PointingHandCursor);
}

SchemeBox::~SchemeBox() = default;

SchemeBox::Row SchemeBox::addScheme(const QString &mapId, const QString &name)
{
    addItem(name);
    Row row;
    row.item = editableItem(count() - 1);
    row.item->setProperty(MapIdProperty, mapId);
    row.editButton = addButton(row.item, ":/icon/svg/optionEdit.svg", tr("Rename"));
    row.shareButton = addButton(row.item, ":/icon/svg/optionShare.svg", tr("Share"));
    row.copyButton = addButton(row.item, ":/icon/svg/optionCopy.svg", tr("Create a copy"));
    row.deleteButton = addButton(row.item, ":/icon/svg/optionDelete.svg", tr("Delete"));
    return row;
}

void SchemeBox::addNoScheme(const QString &text)
{
    addItem(text);
    editableItem(count() - 1)->setProperty(MapIdProperty, QString());
}

QPushButton *SchemeBox::addButton(OvComboBoxEditableItem *row, const char *iconPath, const QString &text)
{
    auto *button = new QPushButton(row);
    button->setIcon(QIcon(QString::fromLatin1(iconPath)));
    button->setIconSize({ButtonExtent, ButtonExtent});
    button->setFixedSize(ButtonExtent, ButtonExtent);
    button->setFocusPolicy(Qt::NoFocus); // a name that is being typed stays
    button->setCursor(Qt::PointingHandCursor);
    button->setStyleSheet(buttonStyle());
    button->setToolTip(text);
    button->setAccessibleName(text);
    row->layout()->addWidget(button);
    return button;
}

QString SchemeBox::mapIdAt(int row) const
{
    return mapIdOf(editableItem(row));
}

int SchemeBox::rowOf(const QString &mapId) const
{
    for (int row = 0; row < count() && !mapId.isEmpty(); ++row) {
        if (mapIdAt(row) == mapId)
            return row;
    }
    return -1;
}

OvComboBoxEditableItem *SchemeBox::rowWidgetOf(QObject *buttonOrRow)
{
    for (QObject *object = buttonOrRow; object; object = object->parent()) {
        if (auto *row = qobject_cast<OvComboBoxEditableItem *>(object))
            return row;
    }
    return nullptr;
}

QString SchemeBox::mapIdOf(const OvComboBoxEditableItem *row)
{
    return row ? row->property(MapIdProperty).toString() : QString();
}

SchemeBox::Renaming SchemeBox::renaming() const
{
    const OvComboBoxEditableItem *edited = listView()->editedItem();
    const auto *edit = edited ? edited->findChild<QLineEdit *>() : nullptr;
    return edit ? Renaming{mapIdOf(edited), edit->text()} : Renaming();
}

void SchemeBox::resume(const Renaming &renaming)
{
    OvComboBoxEditableItem *row = editableItem(rowOf(renaming.mapId));
    if (!row || !isOpen())
        return;
    row->onWritableStateChanged(true);
    if (auto *edit = row->findChild<QLineEdit *>())
        edit->setText(renaming.text);
}

bool SchemeBox::isOpen() const
{
    return listView()->isVisible();
}

void SchemeBox::wheelEvent(QWheelEvent *event)
{
    event->ignore();
}
