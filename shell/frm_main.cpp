#include "shell/frm_main.h"

#include "shell/geometry.h"
#include "shell/help_page.h"
#include "shell/image_button.h"
#include "shell/input_page.h"
#include "shell/link_label.h"
#include "shell/links.h"
#include "shell/main_page.h"
#include "shell/name_box.h"
#include "shell/report_page.h"
#include "shell/rich_text_box.h"
#include "shell/style.h"
#include "shell/topic_tree_view.h"

#include <QAction>
#include <QApplication>
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

#include <algorithm>

using namespace Qt::StringLiterals;

// The window as it is built: controls, places, menus, and who calls whom.

frmMain::frmMain() {
    setObjectName(u"frmMain"_s);
    setWindowTitle(u"Orravane v1.0"_s);
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                   Qt::MSWindowsFixedSizeDialogHint);

    auto *clientArea = new QWidget(this);
    clientArea->setFixedSize(At("picMain").place.size());
    setCentralWidget(clientArea);
    layout()->setSizeConstraint(QLayout::SetFixedSize);

    BuildPages();
    BuildMenus();
    ConnectEvents();
    OrderTabStops();
    qApp->installEventFilter(this);
}

frmMain::~frmMain() = default;

void frmMain::BuildPages() {
    const auto commandButton = [this](const QString &caption) {
        auto *button = new QPushButton(caption, centralWidget());
        button->setFocusPolicy(Qt::NoFocus); // out of sight: reached by its mnemonic alone
        return button;
    };
    cmdSave = Placed(commandButton(tr("&Save")), At("cmdSave"));
    cmdPrint = Placed(commandButton(tr("&Print")), At("cmdPrint"));
    cmdNext = Placed(commandButton(tr("&Proceed")), At("cmdNext"));

    picMain = Placed(new MainPage(centralWidget()), At("picMain"));

    picExit = Placed(new ImageButton(1, tr("Exit"), picMain), At("picExit"));
    picExit->setToolTip(tr("Exit"));
    picHelp = Placed(new ImageButton(3, tr("Help"), picMain), At("picHelp"));
    picHelp->setToolTip(tr("Help"));
    TV = Placed(new TopicTreeView(picMain), At("TV"));
    lblHyperlink = Placed(new LinkLabel(QString(), picMain), At("lblHyperlink"));
    lblHyperlink->setToolTip(tr("Click To Go To %1").arg(SiteAddress()));
    lblHyperlink->setAccessibleName(SiteAddress());

    // Stacked exactly over each other, the input page on top.
    Picture3 = Placed(new HelpPage(picMain), At("Picture3"));
    Picture2 = Placed(new ReportPage(picMain), At("Picture2"));
    Picture1 = Placed(new InputPage(picMain), At("Picture1"));
    picMain->setStyleSheet(PageStyle()); // once all that it speaks of is there
    BringToFront(Picture1);
}

void frmMain::BuildMenus() {
    QMenu *mnuFile = menuBar()->addMenu(tr("&File"));
    mnuFile->setObjectName(u"mnuFile"_s);
    mnuExit = mnuFile->addAction(tr("E&xit"));

    QMenu *mnuHelp = menuBar()->addMenu(tr("&Help"));
    mnuHelp->setObjectName(u"mnuHelp"_s);
    mnuOnline = mnuHelp->addAction(tr("&Online Help"));
    mnuVisit = mnuHelp->addAction(tr("&Visit Us Online"));
    mnuAbout = mnuHelp->addAction(tr("&About Software"));

    // Desktops move actions of such names to menus of their own.
    for (QAction *action : {mnuExit, mnuOnline, mnuVisit, mnuAbout})
        action->setMenuRole(QAction::NoRole);
}

void frmMain::ConnectEvents() {
    connect(Picture1, &InputPage::enterPressed, this, &frmMain::cmdNext_Click);
    connect(Picture1->txtFirstName, &NameBox::keyPress, this, &frmMain::txtFirstName_KeyPress);
    connect(Picture1->txtMiddleName, &NameBox::keyPress, this, &frmMain::txtMiddleName_KeyPress);
    connect(Picture1->txtLastName, &NameBox::keyPress, this, &frmMain::txtLastName_KeyPress);

    connect(cmdNext, &QPushButton::clicked, this, &frmMain::cmdNext_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmMain::cmdPrint_Click);
    connect(cmdSave, &QPushButton::clicked, this, &frmMain::cmdSave_Click);
    connect(Picture1->picProceed, &ImageButton::clicked, this, &frmMain::picProceed_Click);
    connect(Picture2->picPrint, &ImageButton::clicked, this, &frmMain::picPrint_Click);
    connect(Picture2->picSave, &ImageButton::clicked, this, &frmMain::picSave_Click);
    connect(picExit, &ImageButton::clicked, this, &frmMain::picExit_Click);
    connect(picHelp, &ImageButton::clicked, this, &frmMain::picHelp_Click);

    connect(picExit, &ImageButton::mouseMove, this, &frmMain::picExit_MouseMove);
    connect(picHelp, &ImageButton::mouseMove, this, &frmMain::picHelp_MouseMove);
    connect(Picture2->picPrint, &ImageButton::mouseMove, this, &frmMain::picPrint_MouseMove);
    connect(Picture1->picProceed, &ImageButton::mouseMove, this, &frmMain::picProceed_MouseMove);
    connect(Picture2->picSave, &ImageButton::mouseMove, this, &frmMain::picSave_MouseMove);

    connect(TV, &TopicTreeView::nodeClick, this, &frmMain::TV_NodeClick);

    const RichTextBox *RTB = Picture2->RTB;
    connect(RTB, &RichTextBox::changed, this, &frmMain::RTB_Change);
    connect(RTB, &RichTextBox::clicked, this, &frmMain::RTB_Click);
    connect(RTB, &RichTextBox::mouseDown, this, &frmMain::RTB_MouseDown);
    connect(RTB, &RichTextBox::mouseMoved, this, &frmMain::RTB_MouseMove);
    connect(RTB, &RichTextBox::mouseUp, this, &frmMain::RTB_MouseUp);

    connect(lblHyperlink, &LinkLabel::clicked, this, &frmMain::lblHyperlink_Click);
    for (int index = 0; index < 2; ++index)
        connect(Picture3->lblHelp[index], &LinkLabel::clicked, this,
                [this, index] { lblHelp_Click(index); });

    connect(mnuExit, &QAction::triggered, this, &frmMain::mnuExit_Click);
    connect(mnuOnline, &QAction::triggered, this, &frmMain::mnuOnline_Click);
    connect(mnuVisit, &QAction::triggered, this, &frmMain::mnuVisit_Click);
    connect(mnuAbout, &QAction::triggered, this, &frmMain::mnuAbout_Click);
}

void frmMain::OrderTabStops() {
    const QList<QWidget *> order{Picture1->txtFirstName,
                                 Picture1->txtMiddleName,
                                 Picture1->txtLastName,
                                 Picture1->cboMonth,
                                 Picture1->cboDate,
                                 Picture1->cboYear,
                                 Picture1->picProceed,
                                 Picture2->RTB,
                                 Picture2->picPrint,
                                 Picture2->picSave,
                                 Picture3->lblHelp[0],
                                 Picture3->lblHelp[1],
                                 TV,
                                 picHelp,
                                 picExit,
                                 lblHyperlink};
    for (qsizetype index = 1; index < order.size(); ++index)
        setTabOrder(order[index - 1], order[index]);
}

void frmMain::CentreOnScreen() {
    adjustSize();
    const QMargins frame = windowHandle() != nullptr ? windowHandle()->frameMargins() : QMargins();
    const QRect available = screen()->availableGeometry();
    QRect place(QPoint(), size().grownBy(frame));
    place.moveCenter(available.center());
    move(std::max(place.left(), available.left()), std::max(place.top(), available.top()));
}

void frmMain::KeepSize() {
    QWindow *window = windowHandle();
    QRect place = window->geometry();
    if (place.size() == minimumSize())
        return;
    // The window system knows the limits in the pixels of the display before, and the toolkit
    // tells it others only when they change.
    window->setMinimumSize({});
    window->setMaximumSize({QWIDGETSIZE_MAX, QWIDGETSIZE_MAX});
    window->setMinimumSize(minimumSize());
    window->setMaximumSize(minimumSize());
    const QPoint middle = place.center();
    place.setSize(minimumSize());
    place.moveCenter(middle);
    const QMargins frame = window->frameMargins();
    const QRect available = window->screen()->availableGeometry();
    place.moveTopLeft({std::max(place.left(), available.left() + frame.left()),
                       std::max(place.top(), available.top() + frame.top())});
    window->setGeometry(place);
}
