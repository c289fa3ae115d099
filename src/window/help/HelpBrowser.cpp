// From an address to a page or a picture.
#include "window/help/HelpBrowser.h"

#include <algorithm>

#include "engine/help/mHelpPages.h"
#include "engine/help/mRules.h"
#include "engine/state/cData.h"
#include "window/controls/mDialog.h"
#include "window/look/mTablePicture.h"

namespace {

// The part of an address behind the colon.
std::string Rest(const QUrl& address) { return address.path().toStdString(); }

QString PageOf(const QUrl& address) {
    if (!gData) return {};
    std::string html;
    if (address.scheme() == QLatin1String("game")) html = mRules::Page(address.path().toInt());
    if (address.scheme() == QLatin1String("group")) html = mHelpPages::Group(address.path().toInt());
    if (address.scheme() == QLatin1String("page")) html = mHelpPages::Html(Rest(address));
    return QString::fromStdString(html);
}

// The opening deal as wide as the text at first, sharp at the screen's pixel ratio.
QImage DealPicture(int gameID, double pixelRatio) {
    constexpr int Width = 440;            // pixels of the window
    constexpr double DesignPixel = 15.0;  // twips
    constexpr double Border = 150;        // twips of table around the cards
    const std::string name = mRules::Name(gameID);
    if (!gData || name.empty()) return {};
    const cPlate plate = mTablePicture::OpeningDeal(name, mTablePicture::FirstDeal);
    const QRectF area = mTablePicture::Extent(plate).adjusted(-Border, -Border, Border, Border);
    const double scale = Width / (area.width() / DesignPixel);
    QImage image = mTablePicture::Draw(plate, area, std::min(scale, 1.0) * pixelRatio, pixelRatio);
    image.setDevicePixelRatio(pixelRatio);
    return image;
}

}  // namespace

HelpBrowser::HelpBrowser(QWidget* parent) : QTextBrowser(parent) {
    setObjectName(QStringLiteral("helpPage"));
    setAccessibleName(tr("Page"));
    setOpenExternalLinks(false);
    document()->setDocumentMargin(fontMetrics().height());
    // Not every dark theme has a colour of its own for links, and the usual blue is lost on a dark page.
    QPalette colors = palette();
    colors.setColor(QPalette::Link, mDialog::Readable(colors.color(QPalette::Link), colors));
    setPalette(colors);
}

void HelpBrowser::Show(const QUrl& address) { setSource(address); }

QVariant HelpBrowser::loadResource(int type, const QUrl& address) {
    if (address.scheme() == QLatin1String("deal"))
        return DealPicture(address.path().toInt(), devicePixelRatioF());
    if (type == QTextDocument::HtmlResource) return PageOf(address);
    return {};
}

void HelpBrowser::doSetSource(const QUrl& address, QTextDocument::ResourceType) {
    QTextBrowser::doSetSource(address, QTextDocument::HtmlResource);
    Q_EMIT Shown(address);
}
