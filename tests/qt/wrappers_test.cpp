// Qt widgets answering as the VB controls they stand for.
#include "helpers.h"

#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <memory>

namespace velkor6::qt::test {
namespace {

const Variant missing = Variant::missing();

std::vector<QString> column(const QTreeWidget& tree, int c) {
    std::vector<QString> texts;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        texts.push_back(tree.topLevelItem(i)->text(c));
    return texts;
}

TEST(QtListView, ColumnHeadersTakeVbsOptionalArgumentsKeysAndAlignments) {
    QTreeWidget tree;
    const ObjectRef lv = wrap(&tree);
    const ObjectRef headers = obj(get(lv, u"columnheaders"));
    run(headers, u"Clear");
    EXPECT_EQ(num(get(headers, u"Count")), 0);
    // Add(Index, Key, Text, Width, Alignment): left out, they append, keyless, 1440 twips, left.
    run(headers, u"Add", {missing, u"name", u"Name", 3000, 0});
    run(headers, u"Add", {missing, missing, u"State"});
    const ObjectRef amount = obj(run(headers, u"Add", {2, u"amount", u"Amount", 1200, 1}));
    EXPECT_EQ(tree.columnCount(), 3);
    EXPECT_EQ(tree.headerItem()->text(1), "Amount");
    EXPECT_EQ(tree.columnWidth(0), 200);
    EXPECT_EQ(tree.columnWidth(1), 80);
    EXPECT_EQ(tree.columnWidth(2), 96);
    EXPECT_EQ(num(get(amount, u"Width")), 1200);
    EXPECT_EQ(num(get(amount, u"Left")), 3000);
    EXPECT_EQ(num(get(amount, u"Alignment")), 1);
    EXPECT_TRUE(tree.headerItem()->textAlignment(1) & Qt::AlignRight);
    EXPECT_EQ(num(get(obj(get(headers, u"Item", {u"NAME"})), u"Index")), 1);

    // Cells already there and cells added later take their column's alignment; a column put
    // before others takes its cells with it.
    const ObjectRef items = obj(get(lv, u"ListItems"));
    const ObjectRef first = obj(run(items, u"Add", {missing, missing, u"a"}));
    let(first, u"SubItems", {1, u"10"});
    let(first, u"SubItems", {2, u"open"});
    let(obj(get(headers, u"Item", {3})), u"Alignment", {2});
    EXPECT_TRUE(tree.topLevelItem(0)->textAlignment(2) & Qt::AlignHCenter);
    run(headers, u"Add", {1, u"id", u"Id"});
    EXPECT_EQ(column(tree, 1), std::vector<QString>{"a"});
    EXPECT_EQ(str(get(first, u"SubItems", {2})), u"10");
    EXPECT_TRUE(tree.topLevelItem(0)->textAlignment(2) & Qt::AlignRight);
    // The header object follows its column.
    EXPECT_EQ(num(get(amount, u"Index")), 3);
    EXPECT_EQ(num(get(amount, u"SubItemIndex")), 2);
    run(headers, u"Remove", {1});
    EXPECT_EQ(num(get(amount, u"Index")), 2);
    EXPECT_EQ(str(get(first, u"Text")), u"a");

    EXPECT_EQ(errorOf([&] { run(headers, u"Add", {missing, u"name", u"Again"}); }), 35602);
    EXPECT_EQ(errorOf([&] { get(headers, u"Item", {0}); }), 35600);
    EXPECT_EQ(errorOf([&] { get(headers, u"Item", {4}); }), 35600);
    EXPECT_EQ(errorOf([&] { get(headers, u"Item", {u"nokey"}); }), 35601);
    EXPECT_EQ(errorOf([&] { run(headers, u"Add", {missing, missing, u"x", 100, 3}); }), 380);
    EXPECT_EQ(errorOf([&] { get(headers, u"Kount"); }), 438);
}

TEST(QtListView, ItemsSelectionCheckAndSortingAsVbsListView) {
    QTreeWidget tree;
    tree.setColumnCount(2);
    tree.resize(300, 200);
    const ObjectRef lv = wrap(&tree);
    const ObjectRef items = obj(get(lv, u"ListItems"));
    for (const char16_t* text : {u"beta", u"Alpha", u"gamma"})
        run(items, u"Add", {missing, std::u16string(u"k") + text, text});
    EXPECT_EQ(num(get(items, u"Count")), 3);
    const ObjectRef alpha = obj(get(items, u"Item", {2}));
    EXPECT_EQ(str(get(alpha, u"")), u"Alpha"); // the default member is Text
    EXPECT_EQ(num(get(obj(get(items, u"Item", {u"kgamma"})), u"Index")), 3);
    EXPECT_EQ(errorOf([&] { run(items, u"Add", {missing, u"KBETA", u"dup"}); }), 35602);
    EXPECT_EQ(errorOf([&] { get(items, u"Item", {4}); }), 35600);
    EXPECT_EQ(errorOf([&] { run(items, u"Add", {missing, missing, u"pic", 1}); }), 35613);
    EXPECT_EQ(num(get(items, u"Count")), 3);
    EXPECT_EQ(errorOf([&] { get(alpha, u"SubItems", {2}); }), 35600);
    let(alpha, u"SubItems", {1, u"x"});
    EXPECT_EQ(tree.topLevelItem(1)->text(1), "x");

    // Single selection: selecting one deselects the other; SelectedItem is the current item.
    EXPECT_FALSE(num(get(lv, u"MultiSelect")));
    let(obj(get(items, u"Item", {1})), u"Selected", {true});
    let(alpha, u"Selected", {true});
    EXPECT_FALSE(tree.topLevelItem(0)->isSelected());
    let(lv, u"SelectedItem", {Variant(alpha)});
    EXPECT_EQ(str(get(obj(get(lv, u"SelectedItem")), u"Text")), u"Alpha");
    let(lv, u"MultiSelect", {true});
    let(obj(get(items, u"Item", {3})), u"Selected", {true});
    EXPECT_EQ(tree.selectedItems().size(), 2);

    let(lv, u"Checkboxes", {true});
    EXPECT_EQ(tree.topLevelItem(0)->checkState(0), Qt::Unchecked);
    let(alpha, u"Checked", {true});
    EXPECT_EQ(tree.topLevelItem(1)->checkState(0), Qt::Checked);
    EXPECT_EQ(num(get(alpha, u"CHECKED")), -1);

    // Sorted = True orders by the text of SortKey, not case-sensitive; SortOrder 1 reverses; an
    // item added later goes in its place. The wrapper of an item follows it.
    let(lv, u"Sorted", {true});
    EXPECT_EQ(column(tree, 0), (std::vector<QString>{"Alpha", "beta", "gamma"}));
    EXPECT_EQ(num(get(alpha, u"Index")), 1);
    EXPECT_TRUE(tree.topLevelItem(0)->isSelected()); // selection and checks stay with the items
    EXPECT_EQ(tree.topLevelItem(0)->checkState(0), Qt::Checked);
    let(lv, u"SortOrder", {1});
    EXPECT_EQ(column(tree, 0), (std::vector<QString>{"gamma", "beta", "Alpha"}));
    run(items, u"Add", {missing, missing, u"Delta"});
    EXPECT_EQ(column(tree, 0), (std::vector<QString>{"gamma", "Delta", "beta", "Alpha"}));
    let(lv, u"SortKey", {1});
    // Only Alpha has a sub-item: it goes first, the equal others keep their order.
    EXPECT_EQ(column(tree, 0), (std::vector<QString>{"Alpha", "gamma", "Delta", "beta"}));
    EXPECT_EQ(errorOf([&] { let(lv, u"SortOrder", {2}); }), 380);

    // HitTest in twips from the control's corner, below the header.
    tree.show();
    const QRect row = tree.visualItemRect(tree.topLevelItem(0));
    const QPoint inControl = tree.viewport()->mapTo(&tree, row.center());
    const ObjectRef hit = obj(run(lv, u"HitTest", {inControl.x() * 15, inControl.y() * 15}));
    ASSERT_NE(hit, nullptr);
    EXPECT_EQ(num(get(hit, u"Index")), 1);
    EXPECT_EQ(obj(run(lv, u"HitTest", {15, 2990})), nullptr);

    // A removed item's wrapper is disconnected, also when a new item takes its memory.
    run(items, u"Remove", {u"kalpha"});
    run(items, u"Add", {missing, missing, u"new"});
    EXPECT_EQ(errorOf([&] { get(alpha, u"Text"); }), -2147417848);
    run(items, u"Clear");
    EXPECT_EQ(num(get(items, u"Count")), 0);
    EXPECT_EQ(obj(get(lv, u"SelectedItem")), nullptr);
}

TEST(QtListBox, ListAndComboBoxesAsVbsOwn) {
    QListWidget list;
    const ObjectRef lb = wrap(&list);
    EXPECT_EQ(lb->typeName(), u"ListBox");
    for (int flag : {1, 2, 4, 5}) {
        run(lb, u"AddItem", {QString::number(flag).toStdU16String()});
        let(lb, u"ItemData", {get(lb, u"NewIndex"), flag});
    }
    run(lb, u"AddItem", {u"first", 0});
    EXPECT_EQ(num(get(lb, u"NewIndex")), 0);
    EXPECT_EQ(num(get(lb, u"ListCount")), 5);
    EXPECT_EQ(num(get(lb, u"ItemData", {4})), 5);
    EXPECT_EQ(str(get(lb, u"List", {1})), u"1");
    EXPECT_EQ(str(get(lb, u"List", {99})), u"");
    EXPECT_EQ(errorOf([&] { get(lb, u"ItemData", {5}); }), 381);
    EXPECT_EQ(errorOf([&] { let(lb, u"ListIndex", {5}); }), 380);
    EXPECT_EQ(errorOf([&] { run(lb, u"AddItem", {u"x", 9}); }), 5);

    let(lb, u"MultiSelect", {2});
    let(lb, u"Selected", {1, true});
    let(lb, u"Selected", {3, true});
    EXPECT_EQ(num(get(lb, u"SelCount")), 2);
    EXPECT_EQ(num(get(lb, u"Selected", {3})), -1);
    let(lb, u"MultiSelect", {0});
    let(lb, u"ListIndex", {2});
    EXPECT_EQ(str(get(lb, u"Text")), u"2");
    let(lb, u"ListIndex", {-1});
    EXPECT_EQ(num(get(lb, u"ListIndex")), -1);
    EXPECT_TRUE(list.selectedItems().isEmpty());

    // A sorting list puts new entries in place: NewIndex says where.
    list.clear();
    list.setSortingEnabled(true);
    run(lb, u"AddItem", {u"m"});
    run(lb, u"AddItem", {u"c"});
    EXPECT_EQ(num(get(lb, u"NewIndex")), 0);

    QComboBox combo;
    const ObjectRef cb = wrap(&combo);
    run(cb, u"AddItem", {u"one"});
    run(cb, u"AddItem", {u"two"});
    let(cb, u"ItemData", {1, 42});
    let(cb, u"Text", {u"TWO"});
    EXPECT_EQ(num(get(cb, u"ListIndex")), 1);
    EXPECT_EQ(combo.itemData(1).toInt(), 42);
    EXPECT_EQ(errorOf([&] { get(cb, u"MultiSelect"); }), 438);
    run(cb, u"RemoveItem", {0});
    EXPECT_EQ(str(get(cb, u"List", {0})), u"two");
}

TEST(QtTabStrip, TabsOfATabWidgetAndOfATabBar) {
    QTabWidget pages;
    auto* ownPage = new QWidget;
    pages.addTab(ownPage, "Program's");
    const ObjectRef ts = wrap(&pages);
    const ObjectRef tabs = obj(get(ts, u"Tabs"));
    run(tabs, u"Add", {missing, missing, u"Second"});
    const ObjectRef third = obj(run(tabs, u"Add", {missing, u"t3", u"Third"}));
    EXPECT_EQ(pages.count(), 3);
    EXPECT_EQ(str(get(obj(get(tabs, u"Item", {2})), u"Caption")), u"Second");
    let(ts, u"SelectedItem", {Variant(third)});
    EXPECT_EQ(pages.currentIndex(), 2);
    EXPECT_EQ(num(get(obj(get(ts, u"SelectedItem")), u"Index")), 3);
    QPointer<QWidget> madePage = pages.widget(1);
    run(tabs, u"Clear");
    EXPECT_EQ(pages.count(), 0);
    EXPECT_TRUE(madePage.isNull()) << "a page the wrapper made goes with its tab";
    EXPECT_EQ(ownPage->parent() != nullptr, true) << "the program's page stays the program's";
    EXPECT_EQ(obj(get(ts, u"SelectedItem")), nullptr);
    EXPECT_EQ(errorOf([&] { get(third, u"Caption"); }), -2147417848);

    QTabBar bar;
    const ObjectRef strip = wrap(&bar);
    const ObjectRef barTabs = obj(get(strip, u"Tabs"));
    run(barTabs, u"Add", {missing, u"a", u"A"});
    run(barTabs, u"Add", {1, u"b", u"B"});
    EXPECT_EQ(bar.tabText(0), "B");
    EXPECT_EQ(num(get(obj(get(barTabs, u"Item", {u"a"})), u"Index")), 2);
    EXPECT_EQ(errorOf([&] { get(barTabs, u"Item", {3}); }), 35600);
    run(barTabs, u"Remove", {u"b"});
    EXPECT_EQ(num(get(barTabs, u"Count")), 1);
}

TEST(QtForm, FieldsControlsArraysAndHandles) {
    auto form = std::make_unique<QWidget>();
    form->setObjectName("frmMain");
    auto* layout = new QVBoxLayout(form.get());
    auto* name = new QLineEdit("hello");
    name->setObjectName("txtName");
    auto* notes = new QPlainTextEdit("one\ntwo");
    notes->setObjectName("txtNotes");
    auto* frame = new QGroupBox("Frame");
    frame->setObjectName("fraTab");
    frame->setProperty("Index", 1);
    auto* frame2 = new QGroupBox("Frame 2");
    frame2->setObjectName("fraTab");
    frame2->setProperty("Index", 2);
    auto* option = new QRadioButton("Opt", frame2);
    option->setObjectName("optKind");
    auto* ok = new QPushButton("OK");
    ok->setObjectName("cmdOK");
    for (QWidget* w : std::initializer_list<QWidget*>{name, notes, frame, frame2, ok})
        layout->addWidget(w);
    const ObjectRef frm = wrap(form.get());
    EXPECT_EQ(frm->typeName(), u"Form");

    const ObjectRef txt = obj(get(frm, u"txtname"));
    EXPECT_EQ(txt->typeName(), u"TextBox");
    let(txt, u"SelStart", {1});
    let(txt, u"SelLength", {3});
    EXPECT_EQ(name->selectedText(), "ell");
    EXPECT_EQ(num(get(txt, u"SelLength")), 3);
    let(txt, u"SelLength", {99});
    EXPECT_EQ(num(get(txt, u"SelLength")), 4);
    EXPECT_EQ(errorOf([&] { let(txt, u"SelStart", {-1}); }), 380);
    const ObjectRef multi = obj(get(obj(get(frm, u"Controls")), u"Item", {u"txtNotes"}));
    let(multi, u"Text", {u"a\r\nbc"});
    EXPECT_EQ(str(get(multi, u"Text")), u"a\nbc");
    let(multi, u"SelStart", {2});
    let(multi, u"SelLength", {2});
    EXPECT_EQ(str(get(multi, u"SelText")), u"bc");

    // Controls lists the named widgets, not Qt's own nor those of a window the form owns;
    // arrays by their Index.
    auto* dialog = new QWidget(form.get(), Qt::Dialog);
    (new QLineEdit(dialog))->setObjectName("txtElsewhere");
    const ObjectRef controls = obj(get(frm, u"Controls"));
    EXPECT_EQ(num(get(controls, u"Count")), 6);
    EXPECT_EQ(errorOf([&] { get(controls, u"Item", {u"nothere"}); }), 730);
    EXPECT_EQ(errorOf([&] { get(controls, u"Item", {6}); }), 9);
    const ObjectRef tabsArray = obj(get(controls, u"Item", {u"fraTab"}));
    EXPECT_EQ(num(get(tabsArray, u"UBound")), 2);
    EXPECT_EQ(str(get(obj(get(frm, u"fraTab", {2})), u"Caption")), u"Frame 2");
    EXPECT_EQ(errorOf([&] { get(tabsArray, u"Item", {3}); }), 340);
    EXPECT_EQ(errorOf([&] { get(txt, u"Index"); }), 343);
    const ObjectRef opt = obj(get(frm, u"optKind"));
    let(opt, u"Value", {true});
    EXPECT_TRUE(option->isChecked());
    // Parent is the form, Container the widget the control sits in.
    EXPECT_EQ(str(get(obj(get(opt, u"Parent")), u"Name")), u"frmMain");
    EXPECT_EQ(str(get(obj(get(opt, u"Container")), u"Caption")), u"Frame 2");

    let(txt, u"Visible", {false});
    EXPECT_TRUE(name->isHidden());
    let(txt, u"MousePointer", {11});
    EXPECT_EQ(name->cursor().shape(), Qt::WaitCursor);
    EXPECT_EQ(num(get(txt, u"MousePointer")), 11);
    let(txt, u"MousePointer", {0});
    EXPECT_FALSE(name->testAttribute(Qt::WA_SetCursor));
    let(txt, u"Width", {1500});
    EXPECT_EQ(name->width(), 100);
    EXPECT_EQ(str(get(obj(get(frm, u"cmdOK")), u"caption")), u"OK");

    // One handle a widget, from the range no X window has; gone with the widget.
    const std::int32_t hwnd = num(get(txt, u"hwnd"));
    EXPECT_GE(hwnd, 0x60000000);
    EXPECT_EQ(num(get(wrap(name), u"hWnd")), hwnd);
    EXPECT_EQ(widgetOf(hwnd), name);
    EXPECT_NE(num(get(frm, u"hwnd")), hwnd);
    form.reset();
    EXPECT_EQ(widgetOf(hwnd), nullptr);
    EXPECT_EQ(errorOf([&] { get(txt, u"Text"); }), -2147417848);
    EXPECT_EQ(errorOf([&] { get(controls, u"Count"); }), -2147417848);
    EXPECT_EQ(wrap(nullptr), nullptr);
}

} // namespace
} // namespace velkor6::qt::test
