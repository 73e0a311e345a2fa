// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "subjects.h"

#include "preview/previewview.h"

#include <containertitlebar.h>
#include <printpanels/printpreviewdialog.h>

#include <QtWidgets/QAbstractButton>

namespace Monkey {

namespace {

using namespace Hostile;

/** The preview popup, as a popup, as a window and inside a window of the host. */
class PreviewPopupSubject : public Subject
{
public:
    explicit PreviewPopupSubject(World& sharedWorld) : Subject(sharedWorld)
    {
        const Qt::WindowFlags kinds[] = {Qt::Popup | Qt::FramelessWindowHint,
                                         Qt::FramelessWindowHint, Qt::Tool, Qt::WindowFlags()};
        const Qt::WindowFlags kind = world.random.pick(kinds);
        m_portrait = world.random.coin();
        m_range = {number(world.random), number(world.random), recordList(world.random)};
        const QSizeF shown = size(world.random);
        m_popup = new PrintPreviewDialog(nullptr, kind, image(world.random), shown, shown,
                                         world.random.coin(), m_portrait, world.random.coin(),
                                         m_range.at(0).toInt(), m_range.at(1).toInt(),
                                         m_range.at(2).toString());
        world.trail.note(QStringLiteral("NEW PrintPreviewDialog, flags %1").arg(kind.toInt()));
        // Not the orientation: an arrow key clicks the other button of a group, and Qt then gives
        // that button the focus.
        adopt(m_popup, printPreviewDialogCalls(), {"previewPrintSignal", "popupHideSignal"});
    }

    void aboutToCall(const QByteArray& name, const QVariantList& arguments) override;
    void check() override;

protected:
    void received(const QByteArray& signal, const QVariantList& arguments) override;

private:
    PrintPreviewDialog* m_popup;
    QVariantList m_range;
    bool m_portrait;
};

void PreviewPopupSubject::aboutToCall(const QByteArray& name, const QVariantList& arguments)
{
    if (name != "updatePreview")
        return;
    m_portrait = arguments.at(4).toBool();
    m_range = arguments.mid(6);
}

void PreviewPopupSubject::received(const QByteArray& signal, const QVariantList& arguments)
{
    if (signal == "previewPrintSignal") {
        require(arguments == m_range, "the request is the host's range", describe(arguments));
    } else if (signal == "orientationChangedSignal") {
        m_portrait = arguments.at(0).toInt() == 1;
        require(arguments.at(0) == 0 || arguments.at(0) == 1, "the orientation is one of two",
                describe(arguments));
    } else if (signal == "popupHideSignal") {
        require(m_popup->isHidden(), "a popup that was closed is hidden", QString());
    }
}

void PreviewPopupSubject::check()
{
    require(countChecked(m_popup, {"portraitButton", "landscapeButton"}) == 1,
            "one orientation button is checked", QString());
    require(part<QAbstractButton>(*m_popup, "portraitButton")->isChecked() == m_portrait,
            "the orientation is the one last chosen", QString());
    require(m_popup->size() == QSize(860, 500), "the popup keeps its size",
            describe(QVariant(QSizeF(m_popup->size()))));
    const QString title = m_popup->findChild<ContainerTitleBar*>()->title();
    require(title.startsWith(QLatin1String("Print Preview (")) && title.endsWith(u')') &&
                !title.contains(u'%'),
            "the title names the sizes", title);
}

/** The canvas by itself. */
class PreviewViewSubject : public Subject
{
public:
    explicit PreviewViewSubject(World& sharedWorld) : Subject(sharedWorld)
    {
        m_hint = QSize(world.random.between(-1, 400), world.random.between(0, 400));
        m_view = new PrintPanels::PreviewView(image(world.random), m_hint);
        world.trail.note(QStringLiteral("NEW PreviewView"));
        adopt(m_view, previewViewCalls(), {});
    }

    void check() override
    {
        require(m_view->sizeHint() == m_hint, "the view keeps its size hint", QString());
    }

protected:
    void received(const QByteArray& signal, const QVariantList&) override
    {
        require(false, "a view tells nothing", QString::fromLatin1(signal));
    }

private:
    PrintPanels::PreviewView* m_view;
    QSize m_hint;
};

} // namespace

std::unique_ptr<Subject> createPreviewPopupSubject(World& world)
{
    return std::make_unique<PreviewPopupSubject>(world);
}

std::unique_ptr<Subject> createPreviewViewSubject(World& world)
{
    return std::make_unique<PreviewViewSubject>(world);
}

} // namespace Monkey
