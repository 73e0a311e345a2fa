// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/stylesheets.h"
#include "support/stricttest.h"

#include <printpanels-hostkit/containertitlebar.h>
#include <printpanels-hostkit/expandingtabbar.h>
#include <printpanels/printpreviewdialog.h>

#include <QtCore/QFile>
#include <QtCore/QFileInfo>
#include <QtCore/QRegularExpression>
#include <QtCore/QTemporaryDir>
#include <QtGui/QImage>
#include <QtGui/QPainter>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QScrollBar>
#include <QtWidgets/QStyleOptionSlider>

#include <algorithm>
#include <cmath>
#include <memory>
#include <random>
#include <vector>

namespace {

using WidgetPointer = std::unique_ptr<QWidget>;
/** Which file to use for an image of the panels or of the kit. */
using Source = QString (*)(const QString& image);

const QTemporaryDir& copies()
{
    static const QTemporaryDir folder;
    return folder;
}

QString original(const QString& image)
{
    return image;
}

/** The image without variants beside it. */
QString lonelyCopy(const QString& image)
{
    const QString copy = copies().filePath(QFileInfo(image).fileName());
    if (!QFile::exists(copy))
        QFile::copy(image, copy);
    return copy;
}

QString sheetFrom(const QString& sheet, Source source)
{
    static const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    QString result;
    qsizetype end = 0;
    QRegularExpressionMatchIterator matches = url.globalMatch(sheet);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        result += sheet.mid(end, match.capturedStart(1) - end) + source(match.captured(1));
        end = match.capturedEnd(1);
    }
    return result + sheet.mid(end);
}

enum State { Normal, Down, Checked, Disabled, CheckedDisabled, FirstArrow };

using Factory = WidgetPointer (*)(const QSize& size);

/** A widget that shows an image because of its style sheet. */
struct StyledPlace
{
    const char* image;
    QSize size;
    QString (*sheet)();
    Factory create;
    State state;
};

template <typename Widget>
WidgetPointer sized(const QSize& size)
{
    auto widget = std::make_unique<Widget>();
    widget->setFixedSize(size);
    return widget;
}

/** A check box or a radio button. */
template <typename Button>
WidgetPointer indicator(const QSize& size)
{
    auto button = std::make_unique<Button>();
    // An exclusive button cannot be unchecked later.
    button->setAutoExclusive(false);
    button->resize(size);
    return button;
}

WidgetPointer comboBox(const QSize&)
{
    auto box = std::make_unique<QComboBox>();
    box->resize(60, 40);
    return box;
}

template <Qt::Orientation orientation>
WidgetPointer scrollBar(const QSize&)
{
    auto bar = std::make_unique<QScrollBar>(orientation);
    bar->resize(orientation == Qt::Vertical ? QSize(30, 110) : QSize(110, 35));
    return bar;
}

WidgetPointer settingsButton(const QSize& size)
{
    auto button = std::make_unique<QPushButton>();
    button->setFixedSize(size + QSize(10, 10));
    button->setIconSize(size);
    return button;
}

#define LIBRARY_IMAGE(name) ":/printicons/printericons/" name ".png"
#define MODULE_IMAGE(name) ":/module_icons/ModuleIcons/" name ".png"
#define SIZE_IMAGE(name) ":/Size/SizeIcons/" name ".png"

const std::vector<StyledPlace>& styledPlaces()
{
    using namespace StyleSheets;
    constexpr QSize label(78, 36);
    constexpr QSize zoom(46, 46);
    constexpr QSize turn(45, 45);
    constexpr QSize step(35, 35);
    constexpr QSize check(41, 37);
    constexpr QSize radio(24, 24);
    constexpr QSize arrow(16, 16);
    static const std::vector<StyledPlace> places = {
        {LIBRARY_IMAGE("printer_settings"), step, printerSettingsButton, settingsButton, Normal},
        {LIBRARY_IMAGE("replicating"), label, replicatingLabel, sized<QLabel>, Normal},
        {LIBRARY_IMAGE("replicating_disabled"), label, replicatingLabel, sized<QLabel>, Disabled},
        {LIBRARY_IMAGE("sequencing"), label, sequencingLabel, sized<QLabel>, Normal},
        {LIBRARY_IMAGE("sequencing_disabled"), label, sequencingLabel, sized<QLabel>, Disabled},
        {LIBRARY_IMAGE("zoom-in"), zoom, zoomInButton, sized<QPushButton>, Normal},
        {LIBRARY_IMAGE("zoom-in_pressed"), zoom, zoomInButton, sized<QPushButton>, Down},
        {LIBRARY_IMAGE("zoom-out"), zoom, zoomOutButton, sized<QPushButton>, Normal},
        {LIBRARY_IMAGE("zoom-out_pressed"), zoom, zoomOutButton, sized<QPushButton>, Down},
        {LIBRARY_IMAGE("orientation-portrait"), turn, portraitButton, sized<QPushButton>, Normal},
        {LIBRARY_IMAGE("orientation-portrait_pressed"), turn, portraitButton, sized<QPushButton>,
         Checked},
        {LIBRARY_IMAGE("orientation-landscape"), turn, landscapeButton, sized<QPushButton>, Normal},
        {LIBRARY_IMAGE("orientation-landscape_pressed"), turn, landscapeButton, sized<QPushButton>,
         Checked},
        {SIZE_IMAGE("plus"), step, plusStepButton, sized<QPushButton>, Normal},
        {SIZE_IMAGE("plus-pressed"), step, plusStepButton, sized<QPushButton>, Down},
        {SIZE_IMAGE("plus-disabled"), step, plusStepButton, sized<QPushButton>, Disabled},
        {SIZE_IMAGE("minus"), step, minusStepButton, sized<QPushButton>, Normal},
        {SIZE_IMAGE("minus-pressed"), step, minusStepButton, sized<QPushButton>, Down},
        {SIZE_IMAGE("minus-disabled"), step, minusStepButton, sized<QPushButton>, Disabled},
        {MODULE_IMAGE("checkbox_unselected"), check, checkBoxIndicator, indicator<QCheckBox>,
         Normal},
        {MODULE_IMAGE("checkbox_selected"), check, checkBoxIndicator, indicator<QCheckBox>,
         Checked},
        {MODULE_IMAGE("checkbox_unchecked_disabled"), check, checkBoxIndicator,
         indicator<QCheckBox>, Disabled},
        {MODULE_IMAGE("checkbox_checked_disabled"), check, checkBoxIndicator, indicator<QCheckBox>,
         CheckedDisabled},
        {MODULE_IMAGE("radio-button_unchecked"), radio, radioButtonIndicator,
         indicator<QRadioButton>, Normal},
        {MODULE_IMAGE("radio-button_checked"), radio, radioButtonIndicator, indicator<QRadioButton>,
         Checked},
        {MODULE_IMAGE("radio-button_unchecked-disabled"), radio, radioButtonIndicator,
         indicator<QRadioButton>, Disabled},
        {MODULE_IMAGE("radio-button_checked-disabled"), radio, radioButtonIndicator,
         indicator<QRadioButton>, CheckedDisabled},
        {MODULE_IMAGE("combobox-down-arrow"), arrow, panel, comboBox, Normal},
        {MODULE_IMAGE("combobox-down-arrow-disabled"), arrow, panel, comboBox, Disabled},
        {MODULE_IMAGE("edit-arrow-up"), arrow, panel, scrollBar<Qt::Vertical>, FirstArrow},
        {MODULE_IMAGE("edit-arrow-down"), arrow, panel, scrollBar<Qt::Vertical>, Normal},
        {MODULE_IMAGE("edit-arrow-left"), arrow, panel, scrollBar<Qt::Horizontal>, FirstArrow},
        {MODULE_IMAGE("edit-arrow-right"), arrow, panel, scrollBar<Qt::Horizontal>, Normal},
    };
    return places;
}

QImage grab(QWidget& widget, const QRect& part = QRect(QPoint(0, 0), QSize(-1, -1)))
{
    widget.ensurePolished();
    QImage image = widget.grab(part).toImage().convertToFormat(QImage::Format_ARGB32);
    image.setDevicePixelRatio(1.0);
    return image;
}

/** Where an arrow stands: a scroll bar has others of the same colour elsewhere. */
QRect arrowRect(const QScrollBar& bar, bool first)
{
    QStyleOptionSlider option;
    option.initFrom(&bar);
    option.orientation = bar.orientation();
    option.state.setFlag(QStyle::State_Horizontal, bar.orientation() == Qt::Horizontal);
    return bar.style()->subControlRect(
        QStyle::CC_ScrollBar, &option,
        first ? QStyle::SC_ScrollBarSubLine : QStyle::SC_ScrollBarAddLine, &bar);
}

QImage look(const StyledPlace& place, Source source)
{
    const WidgetPointer widget = place.create(place.size);
    widget->setStyleSheet(sheetFrom(place.sheet(), source));
    widget->setEnabled(place.state != Disabled && place.state != CheckedDisabled);
    if (auto* button = qobject_cast<QAbstractButton*>(widget.get())) {
        button->setCheckable(true);
        button->setChecked(place.state == Checked || place.state == CheckedDisabled);
        button->setDown(place.state == Down);
    }
    if (const auto* bar = qobject_cast<QScrollBar*>(widget.get())) {
        widget->ensurePolished();
        return grab(*widget, arrowRect(*bar, place.state == FirstArrow));
    }
    return grab(*widget);
}

qreal ratio()
{
    return qApp->devicePixelRatio();
}

bool isWhole(qreal value)
{
    return value == std::floor(value);
}

/** The variant of an image for the ratio of the screen, as large as a place of size is there. */
QImage variant(QString image, const QSizeF& size)
{
    const int scale = int(std::ceil(ratio()));
    if (scale > 1)
        image.replace(QLatin1String(".png"), QStringLiteral("@%1x.png").arg(scale));
    QImage picture(image);
    picture.setDevicePixelRatio(1.0);
    if (size * ratio() == picture.size())
        return picture.convertToFormat(QImage::Format_ARGB32);
    const QSizeF pixels = size * ratio();
    QImage scaled(int(std::ceil(pixels.width())), int(std::ceil(pixels.height())),
                  QImage::Format_ARGB32);
    scaled.fill(Qt::transparent);
    QPainter painter(&scaled);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRectF(QPointF(), pixels), picture);
    return scaled;
}

QString borderImage(const char* image)
{
    return QStringLiteral("border-image: url(%1)").arg(QLatin1String(image));
}

constexpr double mostDifference = 3 * 255;

int difference(QRgb a, QRgb b)
{
    return std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
           std::abs(qBlue(a) - qBlue(b));
}

struct Dot
{
    QPoint position;
    QRgb color;
};

/**
 * The opaque pixels of a picture: the others depend on what is below them. In any order but by
 * rows, so that the first ones already tell another picture.
 */
std::vector<Dot> opaqueDots(const QImage& picture)
{
    std::vector<Dot> dots;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(picture.pixel(x, y)) == 255)
                dots.push_back({QPoint(x, y), picture.pixel(x, y)});
        }
    }
    std::shuffle(dots.begin(), dots.end(), std::minstd_rand());
    return dots;
}

/** How far an image differs on average from a picture with its corner at a point; at most limit. */
double differenceAt(const QImage& shown, const std::vector<Dot>& picture, const QPoint& corner,
                    double limit)
{
    const auto* pixels = reinterpret_cast<const QRgb*>(shown.constBits());
    const double most = limit * double(picture.size());
    double sum = 0;
    for (const Dot& dot : picture) {
        const QPoint place = corner + dot.position;
        sum += difference(dot.color, pixels[place.y() * shown.width() + place.x()]);
        if (sum > most)
            return limit;
    }
    return sum / double(picture.size());
}

/** The same where the picture fits best. */
double leastDifference(const QImage& shown, const QImage& picture)
{
    const std::vector<Dot> dots = opaqueDots(picture);
    // Most pictures stand in the middle.
    const QPoint middle = shown.rect().center() - picture.rect().center();
    double least = mostDifference;
    if (shown.rect().contains(picture.rect().translated(middle)))
        least = differenceAt(shown, dots, middle, least);
    for (int y = 0; y + picture.height() <= shown.height(); ++y) {
        for (int x = 0; x + picture.width() <= shown.width(); ++x)
            least = differenceAt(shown, dots, QPoint(x, y), least);
    }
    return least;
}

/** Whether a picture in a place of size is copied to the screen pixel by pixel. */
bool isExact(const QString& image, const QSizeF& size)
{
    return isWhole(ratio()) && QImage(image).size() == size;
}

} // namespace

/**
 * What is painted on a screen with a higher device pixel ratio is the variant of the image for it.
 * QT_SCALE_FACTOR sets the ratio.
 */
class tst_ScaledIcons : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void styledPlaceShowsTheVariant_data();
    void styledPlaceShowsTheVariant();
    void fitButtonShowsTheVariant();
    void tabShowsTheVariant_data();
    void tabShowsTheVariant();
    void closeButtonShowsTheVariant_data();
    void closeButtonShowsTheVariant();

private:
    static void compareLooks(const QImage& look, const QImage& lookWithoutVariants,
                             const QString& image, const QSizeF& size);
};

void tst_ScaledIcons::compareLooks(const QImage& look, const QImage& lookWithoutVariants,
                                   const QString& image, const QSizeF& size)
{
    const QImage picture = variant(image, size);
    const double sharp = leastDifference(look, picture);
    const double blurred = leastDifference(lookWithoutVariants, picture);
    const QByteArray values = QByteArray::number(sharp) + ", " + QByteArray::number(blurred);
    QVERIFY2(sharp == 0 || !isExact(image, size), values.constData());
    QVERIFY2(ratio() == 1 ? sharp == blurred : 2 * sharp < blurred, values.constData());
}

void tst_ScaledIcons::styledPlaceShowsTheVariant_data()
{
    QTest::addColumn<const StyledPlace*>("place");
    for (const StyledPlace& place : styledPlaces()) {
        // Of an image and its variants, Qt takes the one whose size is closest for an icon. That is
        // the image itself at ratios below 1.58.
        if (isWhole(ratio()) || place.sheet().contains(borderImage(place.image)))
            QTest::newRow(place.image) << &place;
    }
}

void tst_ScaledIcons::styledPlaceShowsTheVariant()
{
    QFETCH(const StyledPlace*, place);
    compareLooks(look(*place, original), look(*place, lonelyCopy), QLatin1String(place->image),
                 place->size);
}

void tst_ScaledIcons::fitButtonShowsTheVariant()
{
    if (!isWhole(ratio()))
        return; // Qt takes the image itself, which is larger than the icon.
    const QString image = QStringLiteral(LIBRARY_IMAGE("zoom_fit_transparent"));
    PrintPreviewDialog popup(nullptr, Qt::FramelessWindowHint, QImage(40, 20, QImage::Format_RGB32),
                             QSizeF(4, 2), QSizeF(4, 2), false, true, false, 1, 1, QString());
    auto* button = popup.findChild<QPushButton*>(QStringLiteral("fitButton"));
    QVERIFY(button != nullptr);
    grab(popup); // lays it out
    const QImage shown = grab(*button);
    const QSize pixels =
        QImage(image).size().scaled(button->iconSize() * ratio(), Qt::KeepAspectRatio);
    const QSizeF size = QSizeF(pixels) / ratio();
    button->setIcon(QIcon(lonelyCopy(image)));
    compareLooks(shown, grab(*button), image, size);
}

void tst_ScaledIcons::tabShowsTheVariant_data()
{
    addColumns<QString, QString>("text", "image");
    addRow("ribbon", QStringLiteral("!"), QStringLiteral(":/hostkit/ribbon.png"));
    addRow("no ribbon", QString(QChar(0xe92a)), QStringLiteral(":/hostkit/blank-ribbon.png"));
    addRow("supply", QString(QChar(0xe917)), QStringLiteral(":/hostkit/supply.png"));
}

void tst_ScaledIcons::tabShowsTheVariant()
{
    QFETCH(const QString, text);
    QFETCH(const QString, image);
    if (!isWhole(ratio()))
        return; // An icon, too.
    ExpandingTabBar bar;
    bar.setIconSize(QSize(25, 25));
    bar.addTab(text);
    bar.resize(bar.sizeHint());
    const QImage picture = variant(image, bar.iconSize());
    QCOMPARE(leastDifference(grab(bar), picture), 0.0);
}

void tst_ScaledIcons::closeButtonShowsTheVariant_data()
{
    addColumns<bool, QString>("down", "image");
    addRow("up", false, QStringLiteral(":/hostkit/close.png"));
    addRow("down", true, QStringLiteral(":/hostkit/close-pressed.png"));
}

void tst_ScaledIcons::closeButtonShowsTheVariant()
{
    QFETCH(const bool, down);
    QFETCH(const QString, image);
    ContainerTitleBar bar(nullptr, QString(), QString(), 14);
    auto* button = bar.findChild<QAbstractButton*>(QStringLiteral("CloseButton"));
    QVERIFY(button != nullptr);
    button->setDown(down);
    const QSize size(24, 24);
    QCOMPARE(leastDifference(grab(*button), variant(image, size)), 0.0);
}

QTEST_MAIN(tst_ScaledIcons)
#include "tst_scaledicons.moc"
