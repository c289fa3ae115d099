// A page of the help: text with links, and pictures of opening deals drawn when they are asked for.
#pragma once

#include <QTextBrowser>

class HelpBrowser : public QTextBrowser {
    Q_OBJECT
public:
    explicit HelpBrowser(QWidget* parent = nullptr);

    /// Shows the page of an address such as "game:830", "group:8" or "page:mouse".
    void Show(const QUrl& address);

Q_SIGNALS:
    /// A page is shown; its address, for what stands beside it.
    void Shown(const QUrl& address);

protected:
    QVariant loadResource(int type, const QUrl& address) override;
    void doSetSource(const QUrl& address, QTextDocument::ResourceType type) override;
};
