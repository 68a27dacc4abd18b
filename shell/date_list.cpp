#include "shell/date_list.h"

#include "shell/framed.h"
#include "shell/style.h"

#include <QListView>
#include <QLocale>
#include <QStyledItemDelegate>

using namespace Qt::StringLiterals;

namespace {

/// Draws an entry. The text stands in the same place whether the entry is marked or not.
class EntryDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override {
        const bool marked = option.state.testFlag(QStyle::State_Selected);
        DrawGround(*painter, option.rect, marked ? Colors::gold : Colors::shade);
        painter->setFont(option.font);
        painter->setPen(marked ? Colors::night : QColor(Qt::white));
        painter->drawText(option.rect.adjusted(5, 0, 0, 0), Qt::AlignLeft | Qt::AlignVCenter,
                          index.data().toString());
    }

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override {
        return {QStyledItemDelegate::sizeHint(option, index).width() + 8, 20};
    }
};

class EntryView final : public Framed<QListView> {
public:
    using Framed::Framed;

protected:
    BoxLook BoxNow() const override { return {Colors::mist, 1, 0}; }
};

} // namespace

DateList::DateList(QWidget *parent) : QComboBox(parent) {
    setMaxVisibleItems(12);
    setView(new EntryView);
    setItemDelegate(new EntryDelegate(this));
}

void DateList::AddMonths() {
    const QLocale locale = QLocale::system();
    for (int month = 1; month <= 12; ++month)
        addItem(locale.standaloneMonthName(month, QLocale::LongFormat));
}

void DateList::AddNumbers(int first, int last) {
    for (int number = first; number <= last; ++number)
        addItem(QString::number(number));
}

void DateList::paintEvent(QPaintEvent *event) {
    {
        QPainter painter(this);
        DrawBox(painter, rect(), InputBox(hasFocus()));
        DrawArtwork(painter, u"arrow"_s, QRect(width() - 15, (height() - 5) / 2, 9, 6));
    }
    QComboBox::paintEvent(event);
}
