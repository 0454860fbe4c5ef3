// The file dialog and the folder chooser: filters, flags, the picked paths and new folders, over
// the fake dialog host and the text host.
#include "dialogs/file_dialog.h"
#include "fake/fake_platform.h"
#include "ui/headless/headless_host.h"
#include "velkor6/enums.h"
#include "velkor6/lib.h"

#include <gtest/gtest.h>
#include <sstream>

namespace velkor6 {
namespace {

using Filters = std::vector<FileFilter>;

TEST(FileDialogFilters, ReadPairsAndForgiveMalformedSpecs) {
    EXPECT_EQ(dialogs::parseFilters(u"Resource Library (*.DLL)|*.DLL"),
              (Filters{{u"Resource Library (*.DLL)", u"*.DLL"}}));
    EXPECT_EQ(dialogs::parseFilters(u"Texts| *.txt ; *.log;|All|*.*"),
              (Filters{{u"Texts", u"*.txt;*.log"}, {u"All", u"*.*"}}));
    EXPECT_TRUE(dialogs::parseFilters(u"").empty());
    EXPECT_TRUE(dialogs::parseFilters(u"|").empty());
    // No pattern: left out; no description: the pattern shows; a lone last piece is a pattern.
    EXPECT_EQ(dialogs::parseFilters(u"Nothing| ;|| *.ini|Pictures|*.png|*.bmp"),
              (Filters{{u"*.ini", u"*.ini"}, {u"Pictures", u"*.png"}, {u"*.bmp", u"*.bmp"}}));
}

class FileDialogs : public ::testing::Test {
protected:
    FileDialogs() {
        fp.files.addFile(u"C:\\Data\\a.txt");
        fp.files.addFile(u"C:\\Data\\b.txt");
        fp.files.addFolder(u"C:\\Data\\Old");
    }
    const FileDialogRequest& lastFileRequest() { return fp.dialogs.fileRequests().back(); }
    const FolderDialogRequest& lastFolderRequest() { return fp.dialogs.folderRequests().back(); }

    fake::FakePlatform fp;
    lib l{fp.module};
};

TEST_F(FileDialogs, FlagsBecomeOptionsOfTheKindTheyBelongTo) {
    constexpr std::int32_t all = OFN_FILEMUSTEXIST | OFN_OVERWRITEPROMPT | OFN_ALLOWMULTISELECT;
    EXPECT_EQ(l.vkrFileDialog(false, u"Load", u"T|*.txt|A|*.*", u"C:\\Data", all, u".ini"), u"");
    const FileDialogRequest open = lastFileRequest();
    EXPECT_FALSE(open.save);
    EXPECT_EQ(open.title, u"Load");
    EXPECT_TRUE(open.fileMustExist && open.pathMustExist && open.multiSelect);
    EXPECT_FALSE(open.overwritePrompt); // a save option
    EXPECT_TRUE(open.readOnlyBox);
    EXPECT_EQ(open.defaultExtension, u"ini");
    EXPECT_EQ(open.startFolder, u"C:\\Data");
    EXPECT_EQ(open.filterIndex, 0);

    l.vkrFileDialog(true, u"", u"T|*.txt|A|*.*", u"", all | OFN_HIDEREADONLY, u"", u"", 2);
    const FileDialogRequest save = lastFileRequest();
    EXPECT_TRUE(save.save && save.overwritePrompt);
    EXPECT_FALSE(save.fileMustExist || save.pathMustExist || save.multiSelect || save.readOnlyBox);
    EXPECT_EQ(save.startFolder, u"C:\\"); // the current directory
    EXPECT_EQ(save.filterIndex, 1);

    l.vkrFileDialog(false, u"", u"T|*.txt", u"C:\\Data\\Missing\\Deeper", OFN_PATHMUSTEXIST, u"",
                    u"", 5);
    EXPECT_EQ(lastFileRequest().startFolder, u"C:\\Data"); // the nearest existing folder
    EXPECT_EQ(lastFileRequest().filterIndex, 0);
    EXPECT_TRUE(lastFileRequest().pathMustExist && !lastFileRequest().fileMustExist);

    // A folder in the proposed name moves the start.
    l.vkrFileDialog(true, u"", u"", u"C:\\", 0, u"", u"Data\\Old\\report.txt");
    EXPECT_EQ(lastFileRequest().startFolder, u"C:\\Data\\Old");
    EXPECT_EQ(lastFileRequest().fileName, u"report.txt");
}

TEST_F(FileDialogs, ReturnPickedPathsAsTheRulesAllow) {
    fp.dialogs.answerFiles({u"report"});
    EXPECT_EQ(l.vkrFileDialog(true, u"", u"", u"C:\\Data", 0, u"txt"), u"C:\\Data\\report.txt");
    fp.dialogs.answerFiles({u"C:\\Data\\a.txt", u"b.txt"});
    EXPECT_EQ(l.vkrFileDialog(false, u"", u"", u"C:\\Data", OFN_ALLOWMULTISELECT),
              u"C:\\Data\\a.txt|C:\\Data\\b.txt");
    // Without multiple choice only the first path counts.
    fp.dialogs.answerFiles({u"a.txt", u"b.txt"});
    EXPECT_EQ(l.vkrFileDialog(false, u"", u"", u"C:\\Data"), u"C:\\Data\\a.txt");

    // A missing file, a folder and a name in a missing folder are refused: the dialog opens again.
    const std::size_t before = fp.dialogs.fileRequests().size();
    fp.dialogs.answerFiles({u"c.txt"});
    fp.dialogs.answerFiles({u"Old"});
    fp.dialogs.answerFiles({u"b.txt"});
    EXPECT_EQ(l.vkrFileDialog(false, u"", u"", u"C:\\Data", OFN_FILEMUSTEXIST), u"C:\\Data\\b.txt");
    EXPECT_EQ(fp.dialogs.fileRequests().size(), before + 3);
    fp.dialogs.answerFiles({u"Nowhere\\new.txt"});
    EXPECT_EQ(l.vkrFileDialog(true, u"", u"", u"C:\\Data", OFN_PATHMUSTEXIST), u"");
    fp.dialogs.answerFiles({u"Nowhere\\new.txt"});
    EXPECT_EQ(l.vkrFileDialog(true, u"", u"", u"C:\\Data"), u"C:\\Data\\Nowhere\\new.txt");

    EXPECT_EQ(l.vkrFileDialog(false), u"");  // cancelled
    EXPECT_TRUE(fp.dialogs.forms().empty()); // and no error box for it
}

TEST_F(FileDialogs, ChooserMakesANewFolderOrReportsWhyItCannot) {
    fp.dialogs.answerFolder(u"Old");
    EXPECT_EQ(l.vkrChoosePath(u"Export to", u"C:\\Data"), u"C:\\Data\\Old");
    EXPECT_EQ(lastFolderRequest().title, u"Export to");
    EXPECT_TRUE(lastFolderRequest().allowNewFolder);
    EXPECT_FALSE(lastFolderRequest().editBox);
    EXPECT_EQ(l.vkrChoosePath(), u"");

    fp.dialogs.answerFolder(u"C:\\Data\\2024");
    EXPECT_EQ(l.vkrChoosePath(u"", u"C:\\Data"), u"C:\\Data\\2024");
    EXPECT_TRUE(fp.files.exists(u"C:\\Data\\2024"));
    EXPECT_TRUE(fp.dialogs.forms().empty());

    // Below a file no folder can be made: the error box, then the chooser again.
    fp.dialogs.answerFolder(u"C:\\Data\\a.txt\\Sub");
    fp.dialogs.answerFolder(u"Old");
    EXPECT_EQ(l.vkrChoosePath(u"", u"C:\\Data\\2024"), u"C:\\Data\\Old");
    ASSERT_EQ(fp.dialogs.forms().size(), 1u);
    const DialogForm& box = fp.dialogs.forms().front();
    EXPECT_EQ(box.title, u"velkor6.vkrChoosePath");
    EXPECT_EQ(box.icon, DialogIcon::exclamation);
    ASSERT_GE(box.texts.size(), 2u);
    EXPECT_EQ(box.texts[0].plainText, u"Runtime error '75':");
    EXPECT_EQ(box.texts[1].plainText, u"Path/File access error: C:\\Data\\a.txt\\Sub");
    EXPECT_EQ(lastFolderRequest().startFolder, u"C:\\Data"); // where the new one would have been

    // Without the new-folder flags a missing folder is refused and never made; a file too.
    fp.dialogs.answerFolder(u"C:\\Data\\2025");
    fp.dialogs.answerFolder(u"C:\\Data\\a.txt");
    EXPECT_EQ(l.vkrChoosePath(u"", u"C:\\Data",
                              BIF_RETURNONLYFSDIRS | BIF_USENEWUI | BIF_NONEWFOLDERBUTTON),
              u"");
    EXPECT_FALSE(fp.files.exists(u"C:\\Data\\2025"));
    EXPECT_FALSE(lastFolderRequest().allowNewFolder);
    EXPECT_TRUE(lastFolderRequest().editBox);
    l.vkrChoosePath(u"", u"", BIF_RETURNONLYFSDIRS);
    EXPECT_FALSE(lastFolderRequest().allowNewFolder);
    EXPECT_EQ(fp.dialogs.forms().size(), 1u);
}

TEST(HeadlessFileDialogs, AnswerWithPathsOrCancel) {
    std::istringstream in;
    std::ostringstream out;
    ui::HeadlessHost host(
        {"path:/srv/a.txt|/srv/b.txt", "path:/srv/a.txt|/srv/b.txt", "2", "path:/srv/new"}, false,
        in, out);
    FileDialogRequest request;
    request.multiSelect = true;
    request.startFolder = u"/srv";
    request.filters = {{u"Texts", u"*.txt"}, {u"All", u"*"}};
    request.filterIndex = 1;
    EXPECT_EQ(host.chooseFiles(request),
              (std::vector<std::u16string>{u"/srv/a.txt", u"/srv/b.txt"}));
    request.multiSelect = false; // a "|" is then part of the name
    request.save = true;
    EXPECT_EQ(host.chooseFiles(request), (std::vector<std::u16string>{u"/srv/a.txt|/srv/b.txt"}));
    EXPECT_TRUE(host.chooseFiles(request).empty());
    FolderDialogRequest folder;
    folder.title = u"Export";
    folder.startFolder = u"/srv";
    folder.allowNewFolder = true;
    EXPECT_EQ(host.chooseFolder(folder), u"/srv/new");
    EXPECT_EQ(host.chooseFolder(folder), u""); // no answers left, no terminal
    EXPECT_EQ(out.str(), "--- Open ---\n"
                         "Open files in /srv\n"
                         "    Texts (*.txt)\n"
                         "  * All (*)\n"
                         "--- Save As ---\n"
                         "Save a file in /srv\n"
                         "    Texts (*.txt)\n"
                         "  * All (*)\n"
                         "--- Save As ---\n"
                         "Save a file in /srv\n"
                         "    Texts (*.txt)\n"
                         "  * All (*)\n"
                         "--- Export ---\n"
                         "Choose a folder (a new one is made) in /srv\n"
                         "--- Export ---\n"
                         "Choose a folder (a new one is made) in /srv\n");

    std::istringstream typed("/home/me/notes.txt\n\n");
    std::ostringstream asked;
    ui::HeadlessHost terminal({}, true, typed, asked);
    EXPECT_EQ(terminal.chooseFiles(request), (std::vector<std::u16string>{u"/home/me/notes.txt"}));
    EXPECT_TRUE(terminal.chooseFiles(request).empty()); // an empty line
    EXPECT_TRUE(terminal.chooseFiles(request).empty()); // end of input
}

} // namespace
} // namespace velkor6
