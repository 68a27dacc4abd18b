#pragma once

// Stands in for the browser: writes down the pages that the program opens.

#include <QList>
#include <QObject>
#include <QUrl>

class BrowserLog : public QObject {
    Q_OBJECT

public:
    BrowserLog();
    ~BrowserLog() override;

    /// The pages since the last call, in their order.
    QList<QUrl> Taken() { return std::exchange(pages_, {}); }

public slots:
    void Open(const QUrl &page) { pages_.append(page); }

private:
    QList<QUrl> pages_;
};

/// A page of the program's own site.
QUrl PageOfSite(const QString &path);
