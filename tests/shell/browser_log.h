#pragma once

// Stands in for the browser: writes down the pages that the program opens.

#include <QList>
#include <QObject>
#include <QStringList>
#include <QUrl>

class BrowserLog : public QObject {
    Q_OBJECT

public:
    BrowserLog();
    ~BrowserLog() override;

    /// The pages since the last call, in their order: the path alone for a page of the
    /// program's own site, the whole address for any other.
    QStringList Taken();

public slots:
    void Open(const QUrl &page) { pages_.append(page); }

private:
    QList<QUrl> pages_;
};
