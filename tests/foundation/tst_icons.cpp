// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "foundation/stylesheets.h"
#include "support/stricttest.h"

#include <printpanels/printwidgetinterface.h>

#include <QtCore/QDirIterator>
#include <QtCore/QResource>
#include <QtGui/QImageReader>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

#include <cstdlib>
#include <utility>

namespace {

const QLatin1String prefix(":/printicons/printericons/");

struct IconRow
{
    const char* name;
    int width;
    int height;
};

const IconRow icons[] = {
    {"printer_settings.png", 45, 45},      {"replicating.png", 78, 36},
    {"replicating_disabled.png", 78, 36},  {"sequencing.png", 78, 36},
    {"sequencing_disabled.png", 78, 36},   {"zoom-in.png", 49, 52},
    {"zoom-in_pressed.png", 49, 52},       {"zoom-out.png", 49, 52},
    {"zoom-out_pressed.png", 49, 52},      {"zoom_fit_transparent.png", 62, 57},
    {"orientation-portrait.png", 52, 52},  {"orientation-portrait_pressed.png", 52, 52},
    {"orientation-landscape.png", 52, 52}, {"orientation-landscape_pressed.png", 52, 52},
};

QImage icon(const char* name)
{
    return QImage(prefix + QLatin1String(name));
}

/** How many pixels of two images of the same size differ. */
int differingPixels(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x)
            count += one.pixel(x, y) != other.pixel(x, y) ? 1 : 0;
    }
    return count;
}

QString variantOf(const QString& path, int scale)
{
    return QString(path).replace(QLatin1String(".png"), QStringLiteral("@%1x.png").arg(scale));
}

/** The mean difference between the channels of two images of the same size. */
double meanDifference(const QImage& one, const QImage& other)
{
    int sum = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            const QRgb a = one.pixel(x, y);
            const QRgb b = other.pixel(x, y);
            sum += std::abs(qRed(a) - qRed(b)) + std::abs(qGreen(a) - qGreen(b)) +
                   std::abs(qBlue(a) - qBlue(b)) + std::abs(qAlpha(a) - qAlpha(b));
        }
    }
    return sum / (4.0 * one.width() * one.height());
}

QStringList allSheets()
{
    using namespace StyleSheets;
    return {panel(),
            printSettingsPanel(),
            primaryPushButton(),
            tallPushButton(),
            checkBoxIndicator(),
            radioButtonIndicator(),
            printerSettingsButton(),
            plusStepButton(),
            minusStepButton(),
            replicatingLabel(),
            sequencingLabel(),
            zoomInButton(),
            zoomOutButton(),
            fitButton(),
            portraitButton(),
            landscapeButton(),
            previewFrame(),
            multiPageDialogFrame(),
            previewDialogFrame()};
}

/** Every image that a style sheet names, each once, sorted. */
QStringList imagesNamedBySheets()
{
    static const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    QStringList images;
    const QStringList sheets = allSheets();
    for (const QString& sheet : sheets) {
        QRegularExpressionMatchIterator matches = url.globalMatch(sheet);
        while (matches.hasNext())
            images.append(matches.next().captured(1));
    }
    images.sort();
    images.removeDuplicates();
    return images;
}

} // namespace

class tst_Icons : public StrictTest
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void icon_data();
    void icon();
    void nothingElseStandsUnderThePrefix();
    void variantShowsTheSamePicture_data();
    void variantShowsTheSamePicture();
    void variantsDiffer_data();
    void variantsDiffer();
    void everyPictureIsDrawn_data();
    void everyPictureIsDrawn();
    void sheetsNameTheHostsTwentyImages();
    void everyImageNamedByASheetIsReadable_data();
    void everyImageNamedByASheetIsReadable();
    void pictureLabelShowsTheDisabledImageWhenDisabled();
    void settingsButtonGetsItsIconFromTheSheet();
};

void tst_Icons::initTestCase()
{
    // Uses a symbol of the library, so that the linker keeps it and its resources are registered.
    QCOMPARE(PrintWidgetInterface::staticMetaObject.className(), "PrintWidgetInterface");
}

void tst_Icons::icon_data()
{
    addColumns<QString, QSize>("path", "size");
    for (const IconRow& row : icons)
        QTest::newRow(row.name) << prefix + QLatin1String(row.name) << QSize(row.width, row.height);
}

void tst_Icons::icon()
{
    QFETCH(const QString, path);
    QResource resource(path);
    QVERIFY(resource.isValid());
    QCOMPARE(resource.compressionAlgorithm(), QResource::NoCompression);

    QImageReader reader(path);
    reader.setDecideFormatFromContent(true);
    QCOMPARE(reader.format(), QByteArray("png"));
    const QImage image = reader.read();
    QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
    QTEST(image.size(), "size");
    QCOMPARE(image.devicePixelRatio(), 1.0);
}

void tst_Icons::nothingElseStandsUnderThePrefix()
{
    QStringList expected;
    for (const IconRow& row : icons) {
        const QString path = prefix + QLatin1String(row.name);
        expected << path << variantOf(path, 2) << variantOf(path, 3);
    }
    expected.sort();
    QCOMPARE(expected.size(), 3 * 14);

    QStringList found;
    QDirIterator files(QStringLiteral(":/printicons"), QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext())
        found.append(files.next());
    found.sort();
    QCOMPARE(found, expected);
}

void tst_Icons::variantShowsTheSamePicture_data()
{
    addColumns<QString, int>("path", "scale");
    QStringList paths = imagesNamedBySheets();
    paths << prefix + QLatin1String("zoom_fit_transparent.png");
    for (const char* glyph : {"ribbon", "blank-ribbon", "supply", "close", "close-pressed"})
        paths << QStringLiteral(":/hostkit/%1.png").arg(QLatin1String(glyph));
    for (const QString& path : std::as_const(paths)) {
        for (const int scale : {2, 3})
            QTest::newRow(qPrintable(variantOf(path, scale))) << path << scale;
    }
}

void tst_Icons::variantShowsTheSamePicture()
{
    QFETCH(const QString, path);
    QFETCH(const int, scale);
    const QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32_Premultiplied);
    QImage variant(variantOf(path, scale));
    QCOMPARE(variant.devicePixelRatio(), qreal(scale));
    variant.setDevicePixelRatio(1.0);
    QCOMPARE(variant.size(), image.size() * scale);
    const QImage reduced =
        variant.convertToFormat(QImage::Format_ARGB32_Premultiplied)
            .scaled(image.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    const double difference = meanDifference(reduced, image);
    QVERIFY2(difference < 3, QByteArray::number(difference).constData());
}

void tst_Icons::variantsDiffer_data()
{
    addColumns<QByteArray, QByteArray>("one", "other");
    const auto row = [](const char* one, const char* other) {
        QTest::addRow("%s, %s", one, other) << QByteArray(one) << QByteArray(other);
    };
    row("replicating.png", "replicating_disabled.png");
    row("sequencing.png", "sequencing_disabled.png");
    row("replicating.png", "sequencing.png");
    row("replicating_disabled.png", "sequencing_disabled.png");
    row("zoom-in.png", "zoom-in_pressed.png");
    row("zoom-out.png", "zoom-out_pressed.png");
    row("zoom-in.png", "zoom-out.png");
    row("zoom-in_pressed.png", "zoom-out_pressed.png");
    row("orientation-portrait.png", "orientation-portrait_pressed.png");
    row("orientation-landscape.png", "orientation-landscape_pressed.png");
    row("orientation-portrait.png", "orientation-landscape.png");
    row("orientation-portrait_pressed.png", "orientation-landscape_pressed.png");
}

void tst_Icons::variantsDiffer()
{
    QFETCH(const QByteArray, one);
    QFETCH(const QByteArray, other);
    const QImage first = ::icon(one.constData());
    const QImage second = ::icon(other.constData());
    QVERIFY(!first.isNull());
    QCOMPARE(first.size(), second.size());
    // A difference that a user sees, not one stray pixel.
    QVERIFY(differingPixels(first, second) > 40);
}

void tst_Icons::everyPictureIsDrawn_data()
{
    icon_data();
}

void tst_Icons::everyPictureIsDrawn()
{
    QFETCH(const QString, path);
    const QImage image = QImage(path).convertToFormat(QImage::Format_ARGB32);
    QSet<QRgb> colors;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            colors.insert(image.pixel(x, y));
    }
    QVERIFY(colors.size() > 2);
}

void tst_Icons::sheetsNameTheHostsTwentyImages()
{
    QStringList expected;
    for (const char* name :
         {"combobox-down-arrow", "combobox-down-arrow-disabled", "edit-arrow-up", "edit-arrow-down",
          "edit-arrow-left", "edit-arrow-right", "checkbox_selected", "checkbox_unselected",
          "checkbox_checked_disabled", "checkbox_unchecked_disabled", "radio-button_checked",
          "radio-button_unchecked", "radio-button_checked-disabled",
          "radio-button_unchecked-disabled"})
        expected.append(
            QStringLiteral(":/module_icons/ModuleIcons/%1.png").arg(QLatin1String(name)));
    for (const char* name :
         {"plus", "plus-pressed", "plus-disabled", "minus", "minus-pressed", "minus-disabled"})
        expected.append(QStringLiteral(":/Size/SizeIcons/%1.png").arg(QLatin1String(name)));
    expected.sort();

    QStringList named = imagesNamedBySheets();
    named.removeIf([](const QString& path) { return path.startsWith(prefix); });
    QCOMPARE(named, expected);
}

void tst_Icons::everyImageNamedByASheetIsReadable_data()
{
    QTest::addColumn<QString>("path");
    const QStringList images = imagesNamedBySheets();
    for (const QString& path : images)
        QTest::newRow(qPrintable(path)) << path;
}

void tst_Icons::everyImageNamedByASheetIsReadable()
{
    QFETCH(const QString, path);
    QImageReader reader(path);
    const QImage image = reader.read();
    QVERIFY2(!image.isNull(), qPrintable(reader.errorString()));
    QVERIFY(image.width() > 1 && image.height() > 1);
}

void tst_Icons::pictureLabelShowsTheDisabledImageWhenDisabled()
{
    QLabel label;
    label.setFixedSize(78, 36);
    label.setStyleSheet(StyleSheets::replicatingLabel());
    const QImage enabled = label.grab().toImage();
    label.setEnabled(false);
    const QImage disabled = label.grab().toImage();
    QVERIFY(differingPixels(enabled, disabled) > 40);
    label.setEnabled(true);
    QCOMPARE(label.grab().toImage(), enabled);
}

void tst_Icons::settingsButtonGetsItsIconFromTheSheet()
{
    QPushButton button;
    QVERIFY(button.icon().isNull());
    button.setStyleSheet(StyleSheets::printerSettingsButton());
    button.ensurePolished();
    QVERIFY(!button.icon().isNull());
    QCOMPARE(button.icon().actualSize(QSize(100, 100)), QSize(45, 45));
}

QTEST_MAIN(tst_Icons)
#include "tst_icons.moc"
