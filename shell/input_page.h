#pragma once

// Picture1, the page where the person is entered.

#include "shell/date_list.h"
#include "shell/group.h"
#include "shell/page.h"

#include <QLabel>

class ImageButton;
class NameBox;

class InputPage : public Page {
    Q_OBJECT

public:
    explicit InputPage(QWidget *parent);

    /// Fills the three date lists; the months are the system's own full names.
    void FillLists();

    /// Sets month, date and year, in this order, to their first entries.
    void SelectFirstDates();

    Group *Frame1;
    QLabel *Label2;
    Group *fraName;
    QLabel *Label1;
    NameBox *txtFirstName;
    QLabel *Label4;
    NameBox *txtMiddleName;
    QLabel *Label5;
    NameBox *txtLastName;
    Group *fraBirthDay;
    QLabel *Label6;
    DateList *cboMonth;
    QLabel *Label3;
    DateList *cboDate;
    QLabel *Label7;
    DateList *cboYear;
    ImageButton *picProceed;

signals:
    /// Enter was pressed in a name box or on a closed list. A key that is held down counts
    /// once, and what an input method needs to end its text does not count.
    void enterPressed();

protected:
    void keyPressEvent(QKeyEvent *event) override;
};
