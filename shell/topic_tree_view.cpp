#include "shell/topic_tree_view.h"

#include <QHash>
#include <QHeaderView>
#include <QKeyEvent>

TopicTreeView::TopicTreeView(QWidget *parent) : QTreeWidget(parent) {
    setColumnCount(1);
    setHeaderHidden(true);
    setIndentation(16);
    setUniformRowHeights(true);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setAccessibleName(tr("Topics"));
    connect(this, &QTreeWidget::itemClicked, this, &TopicTreeView::nodeClick);
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
    if ((event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) &&
        currentItem() != nullptr) {
        event->accept();
        emit nodeClick(currentItem());
        return;
    }
    QTreeWidget::keyPressEvent(event);
}
