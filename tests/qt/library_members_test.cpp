// The library's list-view and list-box members on a Qt program's widgets, written as such a
// program would: with the public headers velkor6/lib.h and velkor6/qt.h only.
#include "velkor6/lib.h"
#include "velkor6/qt.h"

#include <QFile>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTreeWidget>
#include <QVBoxLayout>
#include <gtest/gtest.h>
#include <memory>
#include <vector>

namespace {

using velkor6::ObjectRef;
using velkor6::qt::wrap;

std::vector<QString> cells(const QTreeWidget& tree, int column) {
    std::vector<QString> texts;
    for (int i = 0; i < tree.topLevelItemCount(); ++i)
        texts.push_back(tree.topLevelItem(i)->text(column));
    return texts;
}

std::unique_ptr<QTreeWidget> amounts() {
    auto tree = std::make_unique<QTreeWidget>();
    tree->setColumnCount(3);
    for (const char* amount : {"12", "2", "10"})
        new QTreeWidgetItem(tree.get(), {QStringLiteral("Item %1").arg(amount), amount, "open"});
    return tree;
}

TEST(QtLibraryMembers, SortHeadersAndChecksOnATreeWidget) {
    velkor6::lib lib(velkor6::Module::createDefault());
    const auto tree = amounts();
    const ObjectRef lv = wrap(tree.get());

    // A numeric column sorts by number, and the same column again reverses.
    lib.vkrSortListView(lv, 1);
    EXPECT_EQ(cells(*tree, 1), (std::vector<QString>{"2", "10", "12"}));
    lib.vkrSortListView(lv, 1);
    EXPECT_EQ(cells(*tree, 1), (std::vector<QString>{"12", "10", "2"}));

    lib.vkrSetListViewHeaders(lv, u"<Name|2000|name;>Amount|1200;^State");
    ASSERT_EQ(tree->columnCount(), 3);
    QTreeWidgetItem* header = tree->headerItem();
    EXPECT_EQ(header->text(0), "Name");
    EXPECT_EQ(header->text(1), "Amount");
    EXPECT_EQ(header->text(2), "State");
    EXPECT_TRUE(header->textAlignment(0) & Qt::AlignLeft);
    EXPECT_TRUE(header->textAlignment(1) & Qt::AlignRight);
    EXPECT_TRUE(header->textAlignment(2) & Qt::AlignHCenter);
    EXPECT_EQ(tree->columnWidth(0), 2000 / 15);
    EXPECT_EQ(tree->columnWidth(1), 1200 / 15);

    lib.vkrListCheckAllItemsLet(lv, true);
    EXPECT_EQ(lib.vkrListCheckedItems(lv), 3);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(tree->topLevelItem(i)->checkState(0), Qt::Checked);
    tree->topLevelItem(1)->setCheckState(0, Qt::Unchecked);
    EXPECT_EQ(lib.vkrListCheckedItems(lv), 2);
}

TEST(QtLibraryMembers, CopyListViewBetweenTrees) {
    velkor6::lib lib(velkor6::Module::createDefault());
    const auto source = amounts();
    source->headerItem()->setText(1, "Amount");
    source->headerItem()->setTextAlignment(1, Qt::AlignRight);
    source->setColumnWidth(1, 70);
    QTreeWidget target;
    new QTreeWidgetItem(&target, {"old"});
    lib.vkrCopyListView(wrap(source.get()), wrap(&target));
    ASSERT_EQ(target.columnCount(), 3);
    EXPECT_EQ(target.headerItem()->text(1), "Amount");
    EXPECT_TRUE(target.headerItem()->textAlignment(1) & Qt::AlignRight);
    EXPECT_EQ(target.columnWidth(1), 70);
    EXPECT_EQ(cells(target, 0), cells(*source, 0));
    EXPECT_EQ(cells(target, 1), (std::vector<QString>{"12", "2", "10"}));
    EXPECT_EQ(cells(target, 2), (std::vector<QString>{"open", "open", "open"}));
}

TEST(QtLibraryMembers, ListBoxFlagsSelectTheirItems) {
    velkor6::lib lib(velkor6::Module::createDefault());
    QListWidget list;
    list.setSelectionMode(QAbstractItemView::ExtendedSelection);
    for (int flag : {1, 2, 4, 5}) {
        auto* item = new QListWidgetItem(QString::number(flag), &list);
        item->setData(Qt::UserRole, flag);
    }
    list.item(1)->setSelected(true);
    lib.vkrListBoxItemSumLet(wrap(&list), 5);
    std::vector<QString> selected;
    for (const QListWidgetItem* item : list.selectedItems())
        selected.push_back(item->text());
    std::ranges::sort(selected);
    EXPECT_EQ(selected, (std::vector<QString>{"1", "4", "5"}));
    EXPECT_EQ(lib.vkrListBoxItemSum(wrap(&list)), 5);
}

TEST(QtLibraryMembers, StylesAndTabsReachTheWidgetsByHandleAndName) {
    velkor6::lib lib(velkor6::Module::createDefault());
    QWidget form;
    auto* layout = new QVBoxLayout(&form);
    auto* tabs = new QTabWidget;
    layout->addWidget(tabs);
    std::vector<QGroupBox*> frames;
    for (int i = 1; i <= 3; ++i) {
        tabs->addTab(new QWidget, QStringLiteral("Tab %1").arg(i));
        frames.push_back(new QGroupBox);
        frames.back()->setObjectName("fraPage");
        frames.back()->setProperty("Index", i);
        layout->addWidget(frames.back());
    }
    tabs->setCurrentIndex(1);
    lib.vkrOnTabClick(wrap(tabs), u"fraPage");
    EXPECT_TRUE(frames[0]->isHidden());
    EXPECT_FALSE(frames[1]->isHidden());
    EXPECT_TRUE(frames[2]->isHidden());

    auto* edit = new QLineEdit(&form);
    const std::int32_t previous = lib.vkrSetNoNumbers(velkor6::qt::windowHandle(edit), true);
    EXPECT_EQ(previous & 8192, 0);
    ASSERT_NE(edit->validator(), nullptr);
    QString typed = "4a";
    int at = 0;
    EXPECT_EQ(edit->validator()->validate(typed, at), QValidator::Invalid);
    auto* button = new QPushButton("OK", &form);
    lib.vkrAlignText(wrap(button), 512);
    EXPECT_TRUE(button->styleSheet().contains("text-align: right"));

    const auto tree = amounts();
    lib.vkrSetListViewStyle(velkor6::qt::windowHandle(tree.get()), 4);
    EXPECT_EQ(tree->topLevelItem(2)->checkState(0), Qt::Unchecked);
    for (int c = 0; c < 3; ++c)
        tree->setColumnWidth(c, 40);
    EXPECT_EQ(lib.vkrGetListViewCol(wrap(tree.get()), 85), 2);
}

TEST(QtLibraryMembers, ColumnWidthsGoThroughTheSettingsFile) {
    QTemporaryDir folder;
    ASSERT_TRUE(folder.isValid());
    velkor6::lib lib(velkor6::Module::createDefault());
    velkor6::HostApp host;
    host.path = folder.path().toStdU16String();
    host.exeName = u"qtwidths";
    const std::shared_ptr<velkor6::applib> app = lib.vkrInitApp(host, u"qtwidths");

    const auto tree = amounts();
    const ObjectRef lv = wrap(tree.get());
    for (int c = 0; c < 3; ++c)
        tree->setColumnWidth(c, 50 + 10 * c);
    app->saveColWidths(lv, u"lvwAmounts");
    for (int c = 0; c < 3; ++c)
        tree->setColumnWidth(c, 20);
    app->loadColWidths(lv, u"lvwAmounts");
    EXPECT_EQ(tree->columnWidth(0), 50);
    EXPECT_EQ(tree->columnWidth(1), 60);
    EXPECT_EQ(tree->columnWidth(2), 70);

    QFile ini(QString::fromStdU16String(app->iniFile()));
    ASSERT_TRUE(ini.open(QIODevice::ReadOnly)) << ini.fileName().toStdString();
    EXPECT_TRUE(ini.readAll().contains("lvwAmounts=50;60;70"));
}

} // namespace
