#pragma once

// TV, the tree of topics. Built from report/topic_tree.h and addressed by position
// afterwards, as the Proceed pass does.

#include "report/topic_tree.h"
#include "shell/framed.h"

#include <QTreeWidget>

class TopicTreeView : public Framed<QTreeWidget> {
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
    BoxLook BoxNow() const override;
    void drawBranches(QPainter *painter, const QRect &rect,
                      const QModelIndex &index) const override;
    void keyPressEvent(QKeyEvent *event) override;
    bool viewportEvent(QEvent *event) override;
    QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex &index,
                                                         const QEvent *event) const override;

private:
    QList<QTreeWidgetItem *> nodes_;
};
