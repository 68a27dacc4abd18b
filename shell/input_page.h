#pragma once

// Picture1, the page where the person is entered.

#include "shell/page.h"

#include <QComboBox>
#include <QGroupBox>
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

    QGroupBox *Frame1;
    QLabel *Label2;
    QGroupBox *fraName;
    QLabel *Label1;
    NameBox *txtFirstName;
    QLabel *Label4;
    NameBox *txtMiddleName;
    QLabel *Label5;
    NameBox *txtLastName;
    QGroupBox *fraBirthDay;
    QLabel *Label6;
    QComboBox *cboMonth;
    QLabel *Label3;
    QComboBox *cboDate;
    QLabel *Label7;
    QComboBox *cboYear;
    ImageButton *picProceed;
};
