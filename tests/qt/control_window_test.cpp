// Wrapped widgets as the library reaches them by handle: through the native window manager.
#include "helpers.h"
#include "velkor6/module.h"

#include <QHeaderView>
#include <QLineEdit>
#include <QPushButton>
#include <QTreeWidget>
#include <QValidator>
#include <memory>

namespace velkor6::qt::test {
namespace {

constexpr std::uint32_t esNumber = 8192;

std::shared_ptr<ControlWindow> windowOf(QWidget* widget) {
    static const std::shared_ptr<Module> module = Module::createDefault();
    return module->platform().windowManager->controlWindow(windowHandle(widget));
}

// Three items with a number in column 1.
std::unique_ptr<QTreeWidget> numbers() {
    auto tree = std::make_unique<QTreeWidget>();
    tree->setColumnCount(3);
    int row = 0;
    for (const char* cell : {"12", "2", "10"}) {
        auto* item = new QTreeWidgetItem(tree.get());
        item->setText(0, QStringLiteral("Item %1").arg(++row));
        item->setText(1, QLatin1String(cell));
    }
    return tree;
}

std::vector<QString> firstColumn(const QTreeWidget& tree) {
    std::vector<QString> texts;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        texts.push_back(tree.topLevelItem(i)->text(0));
    return texts;
}

TEST(QtControlWindow, ListViewMessagesOnATreeWidget) {
    const auto tree = numbers();
    const std::shared_ptr<ControlWindow> lv = windowOf(tree.get());
    ASSERT_NE(lv, nullptr);
    EXPECT_EQ(lv->itemCount(), 3);
    // Exact, not case-sensitive, from the item after start.
    EXPECT_EQ(lv->findItem(u"item 2", -1), 1);
    EXPECT_EQ(lv->findItem(u"Item 2", 1), -1);
    EXPECT_EQ(lv->findItem(u"Item", -1), -1);
    EXPECT_EQ(lv->itemText(0, 1), u"12");
    EXPECT_EQ(lv->itemText(0, 3), u"");
    EXPECT_EQ(lv->itemText(7, 0), u"");
    EXPECT_TRUE(lv->setItemText(2, 2, u"x"));
    EXPECT_FALSE(lv->setItemText(2, 3, u"x"));
    EXPECT_EQ(tree->topLevelItem(2)->text(2), "x");

    // Check boxes come with the extended style; checked is state image 2, unchecked 1.
    EXPECT_EQ(lv->itemState(0, lvis::stateImageMask), 0u);
    const std::uint32_t gridLines = 1;
    lv->setExtendedStyle(lv->extendedStyle() | 4 | gridLines);
    EXPECT_EQ(lv->extendedStyle() & 5u, 5u);
    EXPECT_EQ(tree->topLevelItem(1)->checkState(0), Qt::Unchecked);
    EXPECT_TRUE(lv->setItemState(-1, lvis::checked, lvis::stateImageMask));
    EXPECT_EQ(lv->itemState(2, 0xFFFFFFFF), lvis::checked);
    EXPECT_TRUE(lv->setItemState(1, lvis::unchecked | lvis::selected,
                                 lvis::stateImageMask | lvis::selected));
    EXPECT_EQ(lv->itemState(1, lvis::stateImageMask | lvis::selected),
              lvis::unchecked | lvis::selected);
    EXPECT_EQ(tree->topLevelItem(0)->checkState(0), Qt::Checked);
    EXPECT_EQ(lv->selectedCount(), 1);
    EXPECT_FALSE(lv->setItemState(3, lvis::selected, lvis::selected));
    lv->setExtendedStyle(lv->extendedStyle() & ~4u & ~0x20u);
    EXPECT_FALSE(tree->topLevelItem(0)->data(0, Qt::CheckStateRole).isValid());
    EXPECT_EQ(tree->selectionBehavior(), QAbstractItemView::SelectItems);
    EXPECT_EQ(lv->extendedStyle() & 0x25u, gridLines) << "a style Qt lacks is kept as written";

    EXPECT_TRUE(lv->setColumnWidth(1, 77));
    EXPECT_EQ(lv->columnWidth(1), 77);
    EXPECT_EQ(tree->columnWidth(1), 77);
    EXPECT_FALSE(lv->setColumnWidth(3, 10));
    EXPECT_EQ(lv->columnWidth(3), 0);
    EXPECT_EQ(lv->horizontalScroll(), 0);
}

TEST(QtControlWindow, SortItemsIsAStableMergeSortOnTheComparersAnswer) {
    const auto tree = numbers();
    const std::shared_ptr<ControlWindow> lv = windowOf(tree.get());
    tree->topLevelItem(1)->setSelected(true);
    // A numeric comparer on the 0/1/2 scale, reading the cells through the window as the
    // library's comparers do: the indices are those from before the sort.
    int asked = 0;
    const auto byNumber = [&](std::int32_t a, std::int32_t b) {
        ++asked;
        const int x = QString::fromStdU16String(lv->itemText(a, 1)).toInt();
        const int y = QString::fromStdU16String(lv->itemText(b, 1)).toInt();
        return x < y ? 0 : x == y ? 1 : 2;
    };
    EXPECT_TRUE(lv->sortItems(byNumber));
    EXPECT_EQ(firstColumn(*tree), (std::vector<QString>{"Item 2", "Item 3", "Item 1"}));
    EXPECT_GT(asked, 0);
    EXPECT_TRUE(tree->topLevelItem(0)->isSelected()) << "the selection stays with its item";

    // "Equal" (1) counts as "goes after", as with any answer above 0: the right one goes first.
    EXPECT_TRUE(lv->sortItems([](std::int32_t, std::int32_t) { return 1; }));
    EXPECT_EQ(firstColumn(*tree), (std::vector<QString>{"Item 1", "Item 3", "Item 2"}));
    // A comparer that answers nonsense still leaves every item once.
    for (int i = 0; i < 5; ++i)
        new QTreeWidgetItem(tree.get(), QStringList{QStringLiteral("Extra %1").arg(i)});
    EXPECT_TRUE(lv->sortItems([](std::int32_t a, std::int32_t b) { return (a * 7 + b) % 3; }));
    std::vector<QString> all = firstColumn(*tree);
    std::ranges::sort(all);
    EXPECT_EQ(std::ranges::unique(all).begin(), all.end());
    EXPECT_EQ(all.size(), 8u);
}

TEST(QtControlWindow, StylesOfEditsAndButtons) {
    QWidget form;
    auto* edit = new QLineEdit(&form);
    auto* button = new QPushButton("OK", &form);
    const std::shared_ptr<ControlWindow> ed = windowOf(edit);
    const std::uint32_t plain = ed->style();
    EXPECT_EQ(plain & esNumber, 0u);
    EXPECT_EQ(ed->setStyle(plain | esNumber), plain);
    ASSERT_NE(edit->validator(), nullptr);
    QString letters = "12a";
    int at = 0;
    EXPECT_EQ(edit->validator()->validate(letters, at), QValidator::Invalid);
    EXPECT_EQ(ed->style() & esNumber, esNumber);
    ed->setStyle(ed->style() & ~esNumber);
    EXPECT_EQ(edit->validator(), nullptr);
    EXPECT_EQ(ed->style(), plain);

    const std::shared_ptr<ControlWindow> bt = windowOf(button);
    bt->setStyle((bt->style() & ~768u) | 512u);
    EXPECT_TRUE(button->styleSheet().contains("text-align: right"));
    EXPECT_EQ(bt->style() & 768u, 512u);
    bt->setStyle((bt->style() & ~768u) | 256u | 1024u);
    EXPECT_EQ(button->styleSheet().count("text-align"), 1);
    EXPECT_EQ(bt->style() & 1792u, 1280u);
    // A list-view message to a button changes nothing.
    EXPECT_EQ(bt->itemCount(), 0);
    EXPECT_EQ(bt->findItem(u"OK", -1), -1);
}

TEST(QtControlWindow, OnlyHandlesOfLiveWrappedWidgets) {
    auto tree = numbers();
    const std::shared_ptr<ControlWindow> lv = windowOf(tree.get());
    const std::int32_t handle = windowHandle(tree.get());
    static const std::shared_ptr<Module> module = Module::createDefault();
    WindowManager& windows = *module->platform().windowManager;
    EXPECT_EQ(windows.controlWindow(handle + 1000), nullptr);
    EXPECT_EQ(windows.controlWindow(0x1200007), nullptr);
    tree.reset();
    EXPECT_EQ(windows.controlWindow(handle), nullptr);
    // A window asked for before keeps answering, neutrally.
    EXPECT_EQ(lv->itemCount(), 0);
    EXPECT_EQ(lv->findItem(u"Item 1", -1), -1);
    EXPECT_FALSE(lv->sortItems([](std::int32_t, std::int32_t) { return 0; }));
}

} // namespace
} // namespace velkor6::qt::test
