// An otherwise empty Qt window with the same kinds of controls, up to its first paint.

#include "bench/quit_after_paint.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QLocale>
#include <QMainWindow>
#include <QMenuBar>
#include <QPushButton>
#include <QTextEdit>
#include <QTreeWidget>

int main(int argc, char *argv[]) {
    QApplication application(argc, argv);
    QMainWindow window;
    auto *page = new QWidget;
    page->setFixedSize(626, 440);
    window.setCentralWidget(page);
    window.menuBar()->addMenu(QStringLiteral("&File"))->addAction(QStringLiteral("E&xit"));
    QMenu *help = window.menuBar()->addMenu(QStringLiteral("&Help"));
    for (int entry = 0; entry < 3; ++entry)
        help->addAction(QString::number(entry));

    auto *tree = new QTreeWidget(page);
    tree->setGeometry(13, 56, 297, 347);
    tree->setHeaderHidden(true);
    for (int root = 0; root < 3; ++root) {
        auto *item = new QTreeWidgetItem(tree, {QString::number(root)});
        for (int child = 0; child < (root == 1 ? 23 : 1); ++child)
            item->addChild(new QTreeWidgetItem({QString::number(child)}));
    }
    auto *pane = new QTextEdit(page);
    pane->setGeometry(315, 56, 297, 347);
    for (int button = 0; button < 8; ++button)
        (new QPushButton(QString::number(button), page))
            ->setGeometry(20 + 60 * button, 410, 50, 24);

    auto *inputs = new QWidget(page);
    inputs->setGeometry(315, 56, 297, 347);
    for (int frame = 0; frame < 3; ++frame) {
        auto *box = new QGroupBox(QString::number(frame), inputs);
        box->setGeometry(8, 8 + 110 * frame, 281, 105);
        for (int row = 0; row < 3; ++row) {
            (new QLabel(QString::number(row), box))->setGeometry(6, 20 + 28 * row, 70, 13);
            if (frame == 1)
                (new QLineEdit(box))->setGeometry(96, 20 + 28 * row, 160, 19);
        }
        if (frame != 2)
            continue;
        auto *days = new QComboBox(box);
        for (int day = 1; day <= 31; ++day)
            days->addItem(QString::number(day));
        auto *months = new QComboBox(box);
        for (int month = 1; month <= 12; ++month)
            months->addItem(QLocale::system().monthName(month));
        auto *years = new QComboBox(box);
        for (int year = 1900; year <= 2050; ++year)
            years->addItem(QString::number(year));
        int top = 16;
        for (QComboBox *list : {days, months, years}) {
            list->setGeometry(96, top, 97, 21);
            top += 28;
        }
    }

    QuitAfterPaint quit(page);
    window.show();
    return QApplication::exec();
}
