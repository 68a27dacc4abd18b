#include "shell/frm_main.h"

#include "shell/app.h"
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
#include <QLayout>
#include <QMenuBar>
#include <QPushButton>
#include <QScreen>

// The window as it is built: controls, places, menus, and who calls whom.

frmMain::frmMain() {
    setObjectName(QStringLiteral("frmMain"));
    setWindowTitle(QStringLiteral("Orravane v1.0"));
    setWindowFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                   Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint |
                   Qt::MSWindowsFixedSizeDialogHint);
    setFont(WindowFont());

    auto *clientArea = new QWidget(this);
    clientArea->setFixedSize(PlaceOf("picMain").size());
    setCentralWidget(clientArea);
    layout()->setSizeConstraint(QLayout::SetFixedSize);

    BuildPages();
    BuildMenus();
    ConnectEvents();
    OrderTabStops();
}

frmMain::~frmMain() = default;

void frmMain::BuildPages() {
    const auto commandButton = [this](const QString &caption) {
        auto *button = new QPushButton(caption, centralWidget());
        button->setFocusPolicy(Qt::NoFocus); // out of sight: reached by its mnemonic alone
        return button;
    };
    cmdSave = Placed(commandButton(tr("&Save")), "cmdSave", PlaceOf("cmdSave"));
    cmdPrint = Placed(commandButton(tr("&Print")), "cmdPrint", PlaceOf("cmdPrint"));
    cmdNext = Placed(commandButton(tr("&Proceed")), "cmdNext", PlaceOf("cmdNext"));

    picMain = Placed(new MainPage(centralWidget()), "picMain", PlaceOf("picMain"));

    picExit = Placed(new ImageButton(1, 2, tr("Exit"), picMain), "picExit", PlaceOf("picExit"));
    picExit->setToolTip(tr("Exit"));
    picHelp = Placed(new ImageButton(3, 4, tr("Help"), picMain), "picHelp", PlaceOf("picHelp"));
    picHelp->setToolTip(tr("Help"));
    TV = Placed(new TopicTreeView(picMain), "TV", PlaceOf("TV"));
    lblHyperlink =
        Placed(new LinkLabel(QString(), picMain), "lblHyperlink", PlaceOf("lblHyperlink"));
    lblHyperlink->setToolTip(tr("Click To Go To %1").arg(SiteAddress()));
    lblHyperlink->setAccessibleName(SiteAddress());

    // Stacked exactly over each other, the input page on top.
    Picture3 = Placed(new HelpPage(picMain), "Picture3", PlaceOf("Picture3"));
    Picture2 = Placed(new ReportPage(picMain), "Picture2", PlaceOf("Picture2"));
    Picture1 = Placed(new InputPage(picMain), "Picture1", PlaceOf("Picture1"));
    picMain->setStyleSheet(PageStyle()); // once all that it speaks of is there
    BringToFront(Picture1);
}

void frmMain::BuildMenus() {
    QMenu *mnuFile = menuBar()->addMenu(tr("&File"));
    mnuFile->setObjectName(QStringLiteral("mnuFile"));
    mnuExit = mnuFile->addAction(tr("E&xit"));

    QMenu *mnuHelp = menuBar()->addMenu(tr("&Help"));
    mnuHelp->setObjectName(QStringLiteral("mnuHelp"));
    mnuOnline = mnuHelp->addAction(tr("&Online Help"));
    mnuVisit = mnuHelp->addAction(tr("&Visit Us Online"));
    mnuAbout = mnuHelp->addAction(tr("&About Software"));

    // Desktops move actions of such names to menus of their own.
    for (QAction *action : {mnuExit, mnuOnline, mnuVisit, mnuAbout})
        action->setMenuRole(QAction::NoRole);
}

void frmMain::ConnectEvents() {
    for (NameBox *box : {Picture1->txtFirstName, Picture1->txtMiddleName, Picture1->txtLastName})
        connect(box, &NameBox::keyPress, this, &frmMain::txtName_KeyPress);

    connect(cmdNext, &QPushButton::clicked, this, &frmMain::cmdNext_Click);
    connect(cmdPrint, &QPushButton::clicked, this, &frmMain::cmdPrint_Click);
    connect(cmdSave, &QPushButton::clicked, this, &frmMain::cmdSave_Click);
    connect(Picture1->picProceed, &ImageButton::clicked, this, &frmMain::cmdNext_Click);
    connect(Picture2->picPrint, &ImageButton::clicked, this, &frmMain::cmdPrint_Click);
    connect(Picture2->picSave, &ImageButton::clicked, this, &frmMain::cmdSave_Click);

    connect(TV, &TopicTreeView::nodeClick, this, &frmMain::TV_NodeClick);

    RichTextBox *RTB = Picture2->RTB;
    connect(RTB, &RichTextBox::changed, this, &frmMain::RTB_Event);
    connect(RTB, &RichTextBox::clicked, this, &frmMain::RTB_Event);
    connect(RTB, &RichTextBox::mouseDown, this, &frmMain::RTB_Event);
    connect(RTB, &RichTextBox::mouseMoved, this, &frmMain::RTB_Event);
    connect(RTB, &RichTextBox::mouseUp, this, &frmMain::RTB_Event);

    connect(picExit, &ImageButton::clicked, this, &frmMain::picExit_Click);
    connect(picHelp, &ImageButton::clicked, this, OpenHelpPage);
    connect(lblHyperlink, &LinkLabel::clicked, this, OpenHomePage);
    connect(Picture3->lblHelp[0], &LinkLabel::clicked, this, OpenHelpPage);
    connect(Picture3->lblHelp[1], &LinkLabel::clicked, this, OpenHomePage);

    connect(mnuExit, &QAction::triggered, this, &frmMain::close);
    connect(mnuOnline, &QAction::triggered, this, OpenHelpPage);
    connect(mnuVisit, &QAction::triggered, this, OpenHomePage);
    connect(mnuAbout, &QAction::triggered, this, [this] {
        picMain->raise();
        BringToFront(Picture3);
    });
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
    const QRect available = screen()->availableGeometry();
    move(available.center() - rect().center());
}
