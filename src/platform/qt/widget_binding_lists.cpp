#include <QComboBox>
#include <QHeaderView>
#include <QKeyEvent>
#include <QListWidget>
#include <QRegularExpression>
#include <QSignalBlocker>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <algorithm>

#include "platform/qt/widget_binding.h"

namespace vorbano {

namespace {

QStringList textsOf(const Lines& lines) {
    QStringList texts;
    texts.reserve(static_cast<qsizetype>(lines.size()));
    for (const std::string& line : lines) texts.append(QString::fromStdString(line));
    return texts;
}

void chooseLine(Control& control, int index, const Act& act) {
    act(control, [&](Operator& clerk) { return clerk.chooseIndex(control, index); });
}

// Combo box

void hangCombo(Control& control, QWidget& widget, const Act& act) {
    auto& combo = static_cast<QComboBox&>(widget);
    combo.setEditable(false);
    combo.setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    // Also told when the line was the chosen one already, as the procedures want it.
    QObject::connect(&combo, &QComboBox::activated, &combo,
                     [&control, act](int index) { chooseLine(control, index, act); });
}

void bringCombo(const Control& control, QWidget& widget) {
    const auto& source = static_cast<const ComboBox&>(control);
    auto& combo = static_cast<QComboBox&>(widget);
    // A text that the program assigned need not be a line of the list; it is shown all the same.
    const int index = source.selection();
    const bool isLine =
        index >= 0 && index < combo.count() && source.items()[static_cast<std::size_t>(index)] == source.text();
    combo.setPlaceholderText(isLine ? QString() : shown(source.text()));
    if (combo.currentIndex() != (isLine ? index : -1)) combo.setCurrentIndex(isLine ? index : -1);
    combo.update();
}

void bringComboLines(const Control& control, QWidget& widget) {
    auto& combo = static_cast<QComboBox&>(widget);
    const QSignalBlocker quiet(combo);
    combo.clear();
    combo.addItems(textsOf(static_cast<const ComboBox&>(control).items()));
    combo.setCurrentIndex(-1);
}

void openCombo(Control& control, QWidget& widget, const Act& act) {
    (void)control;
    (void)act;
    static_cast<QComboBox&>(widget).showPopup();
}

// List box. The pointer and the keys choose in the form, and the widget follows.

void hangList(Control& control, QWidget& widget, const Act& act) {
    (void)control;
    (void)act;
    auto& list = static_cast<QListWidget&>(widget);
    list.setEditTriggers(QAbstractItemView::NoEditTriggers);
    list.setSelectionMode(QAbstractItemView::SingleSelection);
    list.setTabKeyNavigation(false);
    list.setUniformItemSizes(true);
}

void bringList(const Control& control, QWidget& widget) {
    auto& list = static_cast<QListWidget&>(widget);
    const int index = static_cast<const ListBox&>(control).selection();
    if (list.currentRow() != index) list.setCurrentRow(index);
    if (index < 0) list.clearSelection();
}

void bringListLines(const Control& control, QWidget& widget) {
    auto& list = static_cast<QListWidget&>(widget);
    list.clear();
    list.addItems(textsOf(static_cast<const ListBox&>(control).items()));
}

bool pressList(Control& control, QWidget& widget, const QObject* part, QPoint at, const Act& act) {
    auto& list = static_cast<QListWidget&>(widget);
    if (part != list.viewport()) return false;
    const QModelIndex index = list.indexAt(at);
    if (!index.isValid()) return false;
    chooseLine(control, index.row(), act);
    return true;
}

/// The line whose text begins with the typed letter, the next one after `from`; -1 when there is none.
int lineByLetter(const QListWidget& list, int from, const QString& letter) {
    for (int step = 1; step <= list.count(); ++step) {
        const int row = (from + step + list.count()) % list.count();
        if (list.item(row)->text().trimmed().startsWith(letter, Qt::CaseInsensitive)) return row;
    }
    return -1;
}

bool listKey(Control& control, QWidget& widget, const QKeyEvent& key, const Act& act) {
    const auto& list = static_cast<const QListWidget&>(widget);
    if (list.count() == 0) return false;
    const int page = std::max(1, list.viewport()->height() / std::max(1, list.sizeHintForRow(0)) - 1);
    const int last = list.count() - 1;
    const int present = static_cast<const ListBox&>(control).selection();
    int row = -1;
    switch (key.key()) {
        case Qt::Key_Up:
            row = std::max(0, present - 1);
            break;
        case Qt::Key_Down:
            row = std::min(last, present + 1);
            break;
        case Qt::Key_PageUp:
            row = std::max(0, present - page);
            break;
        case Qt::Key_PageDown:
            row = std::min(last, present + page);
            break;
        case Qt::Key_Home:
            row = 0;
            break;
        case Qt::Key_End:
            row = last;
            break;
        default: {
            const QString text = key.text();
            if (text.size() != 1 || !text.front().isLetterOrNumber()) return false;
            row = lineByLetter(list, present, text);
            if (row < 0) return true;
        }
    }
    chooseLine(control, row, act);
    return true;
}

Spot listSpot(QWidget& widget, int line, int column) {
    (void)column;
    auto& list = static_cast<QListWidget&>(widget);
    QListWidgetItem* item = list.item(line);
    if (item == nullptr) return {};
    list.scrollToItem(item);
    return {list.viewport(), list.visualItemRect(item).center()};
}

std::array<QWidget*, 2> listParts(QWidget& widget) {
    return {static_cast<QAbstractScrollArea&>(widget).viewport(), nullptr};
}

// Grid. Row 0 of the form is the heading of the table.

void hangGrid(Control& control, QWidget& widget, const Act& act) {
    (void)control;
    (void)act;
    auto& table = static_cast<QTableWidget&>(widget);
    table.setEditTriggers(QAbstractItemView::NoEditTriggers);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setTabKeyNavigation(false);
    table.setAlternatingRowColors(true);
    table.setWordWrap(false);
    table.verticalHeader()->hide();
    table.verticalHeader()->setDefaultSectionSize(table.fontMetrics().height() + 10);
    table.horizontalHeader()->setHighlightSections(false);
    table.horizontalHeader()->setStretchLastSection(true);
}

bool isNumber(const QString& text) {
    static const QRegularExpression number(QStringLiteral("^-?[0-9.]*(,[0-9]+)?%?$"));
    return number.match(text).hasMatch();
}

void bringGrid(const Control& control, QWidget& widget) {
    setStyleMark(widget, "tone", toneName(static_cast<const Grid&>(control).tone()));
}

/// Every column is as wide as what stands in it, and one takes the room that is left: the last one, or the one that the
/// .ui names. That one also gives way when there is too little; its texts can then be read under the pointer.
void shareRoom(QTableWidget& table) {
    // The scroll bar first, so that the room that is left is counted beside it.
    QHeaderView* header = table.horizontalHeader();
    header->setStretchLastSection(false);
    header->setSectionResizeMode(QHeaderView::Interactive);
    table.resizeColumnsToContents();
    table.doItemsLayout();
    const QVariant named = table.property("stretchColumn");
    const int column = named.toInt();
    if (!named.isValid() || column >= table.columnCount()) {
        header->setStretchLastSection(true);
        return;
    }
    header->setSectionResizeMode(column, QHeaderView::Stretch);
}

void bringGridCells(const Control& control, QWidget& widget) {
    const auto& grid = static_cast<const Grid&>(control);
    auto& table = static_cast<QTableWidget&>(widget);
    const auto& cells = grid.cells();
    std::size_t columns = 0;
    for (const Lines& row : cells) columns = std::max(columns, row.size());
    table.clearContents();
    table.setRowCount(std::max(0, grid.rows()));
    table.setColumnCount(static_cast<int>(columns));
    QStringList heading = cells.empty() ? QStringList() : textsOf(cells.front());
    while (heading.size() < static_cast<qsizetype>(columns)) heading.append(QString());
    table.setHorizontalHeaderLabels(heading);
    for (int column = 0; column < static_cast<int>(columns); ++column) {
        // A heading stands above its figures.
        const QString first = shown(grid.cell(1, column)).trimmed();
        const bool right = !first.isEmpty() && isNumber(first);
        table.horizontalHeaderItem(column)->setTextAlignment((right ? Qt::AlignRight : Qt::AlignLeft) |
                                                             Qt::AlignVCenter);
    }
    for (int row = 1; row <= grid.rows(); ++row) {
        for (int column = 0; column < static_cast<int>(columns); ++column) {
            const QString text = shown(grid.cell(row, column));
            auto* item = new QTableWidgetItem(text);
            const bool right = isNumber(text.trimmed());
            item->setTextAlignment((right ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignVCenter);
            table.setItem(row - 1, column, item);
        }
    }
    shareRoom(table);
}

void pickCell(Control& control, int row, int column, const Act& act) {
    act(control, [&](Operator& clerk) { return clerk.pick(control, row, column); });
}

bool pressGrid(Control& control, QWidget& widget, const QObject* part, QPoint at, const Act& act) {
    auto& table = static_cast<QTableWidget&>(widget);
    if (part == table.horizontalHeader()->viewport()) {
        const int column = table.horizontalHeader()->logicalIndexAt(at);
        if (column < 0) return false;
        pickCell(control, 0, column, act);
        return true;
    }
    const QModelIndex index = part == table.viewport() ? table.indexAt(at) : QModelIndex();
    if (!index.isValid()) return false;
    table.setCurrentIndex(index);
    pickCell(control, index.row() + 1, index.column(), act);
    return true;
}

bool gridKey(Control& control, QWidget& widget, const QKeyEvent& key, const Act& act) {
    const auto& table = static_cast<const QTableWidget&>(widget);
    const bool picks = key.key() == Qt::Key_Return || key.key() == Qt::Key_Enter || key.key() == Qt::Key_Space;
    if (!picks || table.currentRow() < 0 || key.isAutoRepeat()) return false;
    pickCell(control, table.currentRow() + 1, table.currentColumn(), act);
    return true;
}

Spot gridSpot(QWidget& widget, int line, int column) {
    auto& table = static_cast<QTableWidget&>(widget);
    if (column < 0 || column >= table.columnCount() || line < 0 || line > table.rowCount()) return {};
    QHeaderView* heading = table.horizontalHeader();
    if (line == 0) {
        const int middle = heading->sectionViewportPosition(column) + heading->sectionSize(column) / 2;
        return {heading->viewport(), QPoint(middle, heading->height() / 2)};
    }
    const QModelIndex index = table.model()->index(line - 1, column);
    table.scrollTo(index);
    return {table.viewport(), table.visualRect(index).center()};
}

std::array<QWidget*, 2> gridParts(QWidget& widget) {
    auto& table = static_cast<QTableWidget&>(widget);
    return {table.viewport(), table.horizontalHeader()->viewport()};
}

// Tab panel

void turnTo(Control& control, int page, const Act& act) {
    act(control, [&](Operator& clerk) { return clerk.turn(control, page); });
}

void hangTabs(Control& control, QWidget& widget, const Act& act) {
    auto& tabs = static_cast<QTabWidget&>(widget);
    QObject::connect(&tabs, &QTabWidget::currentChanged, &tabs, [&control, act](int page) {
        if (page != static_cast<const TabPanel&>(control).page()) turnTo(control, page, act);
    });
}

void bringTabs(const Control& control, QWidget& widget) {
    auto& tabs = static_cast<QTabWidget&>(widget);
    const int page = static_cast<const TabPanel&>(control).page();
    if (tabs.currentIndex() != page) tabs.setCurrentIndex(page);
}

bool pressTabs(Control& control, QWidget& widget, const QObject* part, QPoint at, const Act& act) {
    const QTabBar* bar = static_cast<const QTabWidget&>(widget).tabBar();
    if (part != bar) return false;
    const int page = bar->tabAt(at);
    if (page < 0) return false;
    turnTo(control, page, act);
    return true;
}

Spot tabSpot(QWidget& widget, int line, int column) {
    (void)column;
    QTabBar* bar = static_cast<QTabWidget&>(widget).tabBar();
    if (line < 0 || line >= bar->count()) return {};
    return {bar, bar->tabRect(line).center()};
}

std::array<QWidget*, 2> tabParts(QWidget& widget) { return {static_cast<QTabWidget&>(widget).tabBar(), nullptr}; }

QWidget* tabFocus(QWidget& widget) { return static_cast<QTabWidget&>(widget).tabBar(); }

}  // namespace

const WidgetBinding comboBinding{.kind = Kind::comboBox,
                                 .classes = {"QComboBox"},
                                 .make = newWidget<QComboBox>,
                                 .hang = hangCombo,
                                 .bring = bringCombo,
                                 .bringContent = bringComboLines,
                                 .activate = openCombo};
const WidgetBinding listBinding{.kind = Kind::listBox,
                                .classes = {"QListWidget"},
                                .make = newWidget<QListWidget>,
                                .hang = hangList,
                                .bring = bringList,
                                .bringContent = bringListLines,
                                .pressAt = pressList,
                                .key = listKey,
                                .spot = listSpot,
                                .parts = listParts};
const WidgetBinding gridBinding{.kind = Kind::grid,
                                .classes = {"QTableWidget"},
                                .make = newWidget<QTableWidget>,
                                .hang = hangGrid,
                                .bring = bringGrid,
                                .bringContent = bringGridCells,
                                .pressAt = pressGrid,
                                .key = gridKey,
                                .spot = gridSpot,
                                .parts = gridParts};
const WidgetBinding tabBinding{.kind = Kind::tabPanel,
                               .classes = {"QTabWidget"},
                               .make = newWidget<QTabWidget>,
                               .hang = hangTabs,
                               .bring = bringTabs,
                               .pressAt = pressTabs,
                               .spot = tabSpot,
                               .parts = tabParts,
                               .focusPart = tabFocus};

}  // namespace vorbano
