#include "shell/topic_tree_view.h"

#include "shell/keys.h"
#include "shell/style.h"

#include <QAccessible>
#include <QHash>
#include <QMouseEvent>

using namespace Qt::StringLiterals;

TopicTreeView::TopicTreeView(QWidget *parent) : Framed(parent) {
    setColumnCount(1);
    setHeaderHidden(true);
    setIndentation(16);
    setUniformRowHeights(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAccessibleName(tr("Topics"));
    connect(this, &QTreeWidget::itemClicked, this, &TopicTreeView::nodeClick);

    // Screen readers ask for the nodes by row, and newer versions of the toolkit remember
    // which node stood in which row. They have to be told that the rows have changed.
    const auto tellRowsChanged = [this] {
        QAccessibleTableModelChangeEvent change(this, QAccessibleTableModelChangeEvent::ModelReset);
        QAccessible::updateAccessibility(&change);
    };
    connect(this, &QTreeWidget::itemExpanded, this, tellRowsChanged);
    connect(this, &QTreeWidget::itemCollapsed, this, tellRowsChanged);
}

void TopicTreeView::Build() {
    QHash<QString, QTreeWidgetItem *> byKey;
    for (const modReadings::TreeNode &node : modReadings::TreeNodes()) {
        auto *item = new QTreeWidgetItem({QStringView(node.caption).toString()});
        if (node.bold) {
            QFont bold = font();
            bold.setBold(true);
            item->setFont(0, bold);
        }
        if (node.parentKey.empty())
            addTopLevelItem(item);
        else
            byKey.value(QString::fromStdU16String(node.parentKey))->addChild(item);
        byKey.insert(QString::fromStdU16String(node.key), item);
        nodes_.append(item);
    }
    QTreeWidgetItem *reset = Node(modReadings::NodePosition::U2);
    scrollToItem(reset); // making it visible opens its branch
    setCurrentItem(reset);
}

QTreeWidgetItem *TopicTreeView::Node(modReadings::NodePosition position) const {
    return nodes_.at(static_cast<qsizetype>(position) - 1);
}

void TopicTreeView::keyPressEvent(QKeyEvent *event) {
    if (IsEnter(*event) && currentItem() != nullptr) {
        event->accept();
        if (!event->isAutoRepeat()) // a missing name would bring up its message for ever
            emit nodeClick(currentItem());
        return;
    }
    Framed::keyPressEvent(event);
}

bool TopicTreeView::viewportEvent(QEvent *event) {
    if (event->type() == QEvent::MouseButtonPress || event->type() == QEvent::MouseButtonDblClick) {
        // A dialog that came up while a button was held has got its release. The view would
        // wait for it still, and take no notice of the next click.
        const auto *mouse = static_cast<QMouseEvent *>(event);
        if (mouse->buttons() == mouse->button() && state() == DragSelectingState)
            setState(NoState);
    }
    return Framed::viewportEvent(event);
}

QItemSelectionModel::SelectionFlags TopicTreeView::selectionCommand(const QModelIndex &index,
                                                                    const QEvent *event) const {
    // One node is always selected: neither a click beside the nodes nor one with Ctrl takes
    // the selection away. A press selects, and its release nothing more: a key may meanwhile
    // have brought another node to where the mouse is.
    const bool isRelease = event != nullptr && event->type() == QEvent::MouseButtonRelease;
    return index.isValid() && !isRelease
               ? QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows
               : QItemSelectionModel::NoUpdate;
}

BoxLook TopicTreeView::BoxNow() const { return {hasFocus() ? Colors::gold : Colors::violet, 1, 0}; }

void TopicTreeView::drawBranches(QPainter *painter, const QRect &rect,
                                 const QModelIndex &index) const {
    if (!model()->hasChildren(index))
        return;
    QRect place(0, 0, 16, 20);
    place.moveCenter(rect.center());
    place.moveRight(rect.right());
    const bool marked = selectionModel()->isSelected(index);
    DrawArtwork(*painter,
                u"branch-%1%2"_s.arg(isExpanded(index) ? u"open"_s : u"closed"_s,
                                     marked ? u"-marked"_s : QString()),
                place);
}
