// Hands a Qt line edit to an installed velkor6 as a VB text box; prints 1 (where its selection
// starts after the library set SelStart).
#include <QApplication>
#include <QLineEdit>
#include <iostream>
#include <vector>
#include <velkor6/qt.h>

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    QLineEdit edit(QStringLiteral("abc"));
    const velkor6::ObjectRef box = velkor6::qt::wrap(&edit);
    std::vector<velkor6::Variant> args{velkor6::Variant(std::int32_t{1})};
    box->call(u"SelStart", velkor6::CallKind::PropertyLet, args);
    std::cout << edit.cursorPosition() << '\n';
}
