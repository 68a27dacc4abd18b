#pragma once

// TV, the tree of topics. Built from report/topic_tree.h and addressed by position
// afterwards, as the Proceed pass does.

#include "report/topic_tree.h"

#include <QTreeWidget>

class TopicTreeView : public QTreeWidget {
    Q_OBJECT

public:
    explicit TopicTreeView(QWidget *parent);

    /// Adds all nodes, opens the user branch and selects "Reset".
    void Build();

    /// The node at a position.
    QTreeWidgetItem *Node(modReadings::NodePosition position) const;

signals:
    /// The user clicked a node, or pressed Enter on it. Selecting from code, moving with
    /// the arrows and opening a branch do not count.
    void nodeClick(QTreeWidgetItem *node);

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    QList<QTreeWidgetItem *> nodes_;
};
