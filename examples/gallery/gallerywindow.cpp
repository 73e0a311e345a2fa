// SPDX-FileCopyrightText: 2026 The PrintPanels developers
// SPDX-License-Identifier: MIT

#include "gallerywindow.h"

#include "signallog.h"

#include <QtCore/QEvent>
#include <QtCore/QLocale>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSplitter>
#include <QtWidgets/QToolBar>
#include <QtWidgets/QTreeWidget>
#include <QtWidgets/QVBoxLayout>

namespace Gallery {

namespace {

constexpr int stateRole = Qt::UserRole;
constexpr int textSizes[] = {100, 125, 150, 200};

QLabel* createText(const char* name)
{
    auto* label = new QLabel;
    label->setObjectName(name);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    return label;
}

} // namespace

GalleryWindow::GalleryWindow() : m_states(panelStates())
{
    setWindowTitle("Print panels");
    createToolBar();
    m_tree = createStateTree();
    auto* splitter = new QSplitter;
    splitter->addWidget(m_tree);
    splitter->addWidget(createStage());
    splitter->setStretchFactor(1, 1);
    splitter->setSizes({240, 760});
    splitter->setChildrenCollapsible(false);
    setCentralWidget(splitter);
    connect(m_tree, &QTreeWidget::currentItemChanged, this, [this] {
        showCurrentState();
        // A state may take the keyboard, but the arrow keys have to lead on.
        m_tree->setFocus();
    });
    connect(m_tree, &QTreeWidget::itemActivated, this, [this] { showCurrentState(); });
    connect(m_tree, &QTreeWidget::itemClicked, this, [this] { showCurrentState(); });
    resize(1000, 700);
}

QTreeWidget* GalleryWindow::createStateTree()
{
    auto* tree = new QTreeWidget;
    tree->setObjectName("stateTree");
    tree->setAccessibleName("States of the panels");
    tree->setHeaderHidden(true);
    tree->setMinimumWidth(120);
    QTreeWidgetItem* panel = nullptr;
    for (int i = 0; i < m_states.size(); ++i) {
        const QString name = m_states.at(i).panel;
        if (panel == nullptr || panel->text(0) != name) {
            panel = new QTreeWidgetItem(tree, {name});
            panel->setFlags(Qt::ItemIsEnabled);
        }
        auto* state = new QTreeWidgetItem(panel, {QString::fromUtf8(m_states.at(i).title)});
        state->setData(0, stateRole, i);
    }
    tree->expandAll();
    return tree;
}

QWidget* GalleryWindow::createStage()
{
    m_title = createText("stateTitle");
    m_description = createText("stateDescription");
    m_area = new QScrollArea;
    m_area->setObjectName("stage");
    m_area->setAccessibleName("Panel");
    m_area->setWidgetResizable(true);
    m_log = new SignalLog;
    auto* splitter = new QSplitter(Qt::Vertical);
    splitter->addWidget(m_area);
    splitter->addWidget(m_log);
    splitter->setStretchFactor(0, 1);
    splitter->setSizes({600, 100});
    m_log->setMinimumHeight(40);
    auto* stage = new QWidget;
    auto* layout = new QVBoxLayout(stage);
    layout->addWidget(m_title);
    layout->addWidget(m_description);
    layout->addWidget(splitter, 1);
    return stage;
}

void GalleryWindow::createToolBar()
{
    QToolBar* bar = addToolBar("Appearance");
    bar->setMovable(false);
    QCheckBox* dark = createSwitch("darkCheck", "D&ark");
    QCheckBox* rightToLeft = createSwitch("rightToLeftCheck", "&Right to left");
    m_disabled = createSwitch("disabledCheck", "D&isabled");
    createLanguages();
    createTextSizes();
    for (QWidget* control :
         std::initializer_list<QWidget*>{dark, rightToLeft, m_disabled, m_languages, m_textSizes})
        bar->addWidget(control);
    connect(dark, &QCheckBox::toggled, this, [this](bool on) { m_appearance.setDark(on); });
    connect(rightToLeft, &QCheckBox::toggled, this,
            [this](bool on) { m_appearance.setRightToLeft(on); });
    connect(m_disabled, &QCheckBox::toggled, this, [this](bool on) {
        if (m_panel)
            m_panel->setDisabled(on);
    });
}

QCheckBox* GalleryWindow::createSwitch(const char* name, const QString& text)
{
    auto* check = new QCheckBox(text);
    check->setObjectName(name);
    return check;
}

void GalleryWindow::createLanguages()
{
    m_languages = new QComboBox;
    m_languages->setObjectName("languageCombo");
    m_languages->setAccessibleName("Language of the panels");
    m_languages->addItem("English");
    const QStringList languages = m_appearance.languages();
    for (const QString& code : languages)
        m_languages->addItem(QLocale::languageToString(QLocale(code).language()), code);
    connect(m_languages, &QComboBox::currentIndexChanged, this, [this] {
        m_appearance.setLanguage(m_languages->currentData().toString());
        // The host sets the language before it creates a panel.
        showCurrentState();
    });
}

void GalleryWindow::createTextSizes()
{
    m_textSizes = new QComboBox;
    m_textSizes->setObjectName("textSizeCombo");
    m_textSizes->setAccessibleName("Size of texts");
    for (const int percent : textSizes)
        m_textSizes->addItem(QString("Text %1 %").arg(percent), percent);
    connect(m_textSizes, &QComboBox::currentIndexChanged, this, [this] {
        m_appearance.setTextSize(m_textSizes->currentData().toInt());
        showCurrentState();
    });
}

bool GalleryWindow::showState(const QString& name)
{
    for (QTreeWidgetItemIterator item(m_tree); *item != nullptr; ++item) {
        const QVariant index = (*item)->data(0, stateRole);
        if (index.isValid() && name == m_states.at(index.toInt()).name) {
            m_tree->setCurrentItem(*item);
            return true;
        }
    }
    return false;
}

void GalleryWindow::showCurrentState()
{
    const QTreeWidgetItem* item = m_tree->currentItem();
    if (item == nullptr || !item->data(0, stateRole).isValid())
        return;
    const PanelState& state = m_states.at(item->data(0, stateRole).toInt());
    m_title->setText(QString("%1: %2").arg(state.panel, QString::fromUtf8(state.title)));
    m_description->setText(QString::fromUtf8(state.description));
    m_log->clear();

    auto* ground = new QWidget;
    auto* layout = new QVBoxLayout(ground);
    m_panel = state.create();
    layout->addWidget(m_panel, 0, Qt::AlignLeft | Qt::AlignTop);
    m_panel->setMinimumWidth(qMax(m_panel->minimumWidth(), qMin(320, m_panel->maximumWidth())));
    m_panel->setDisabled(m_disabled->isChecked());
    m_log->listenTo(m_panel);
    // Deletes the panel before.
    m_area->setWidget(ground);
    m_panel->show();
    m_panel->installEventFilter(this);
    if (state.operate != nullptr)
        state.operate(*m_panel);
}

bool GalleryWindow::eventFilter(QObject* watched, QEvent* event)
{
    if (watched == m_panel && event->type() == QEvent::Move)
        keepInPlace();
    if (watched == m_panel && event->type() == QEvent::HideToParent)
        m_description->setText("The dialog is closed. Choose the state again to open it.");
    return QMainWindow::eventFilter(watched, event);
}

// The title bar of a dialog would move it about in the gallery.
void GalleryWindow::keepInPlace()
{
    QLayout* layout = m_panel->parentWidget()->layout();
    layout->invalidate();
    layout->activate();
}

} // namespace Gallery
