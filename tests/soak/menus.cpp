// SPDX-License-Identifier: MIT
//
//   vatro-soak-menus
//
// Chooses menu entries of a bare Qt window again and again, and prints how many bytes each choice leaves behind, once for a
// menu and once for a submenu. The toolkit alone uses this much.
#include <QApplication>
#include <QMainWindow>
#include <QMenu>
#include <QMenuBar>
#include <QTest>
#include <cstdio>
#include <fstream>
#include <functional>
#include <string>

namespace {

void Silent(QtMsgType /*type*/, const QMessageLogContext& /*context*/, const QString& /*text*/) {}

long OwnMemory() {
    std::ifstream memory("/proc/self/smaps_rollup");
    for (std::string name; memory >> name;) {
        long kilobytes = 0;
        if (name == "Anonymous:" && memory >> kilobytes) return kilobytes * 1024;
    }
    return 0;
}

void Click(QWidget& widget, QPoint at) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, at);
    QCoreApplication::processEvents();
}

/// The bytes that one choice leaves behind, after the first choices have created everything that is created only once.
long EachTime(const std::function<void()>& choose) {
    constexpr int kFirst = 500;
    constexpr int kTimes = 2000;
    for (int i = 0; i < kFirst; ++i) choose();
    const long before = OwnMemory();
    for (int i = 0; i < kTimes; ++i) choose();
    return (OwnMemory() - before) / kTimes;
}

}  // namespace

int main(int argc, char** argv) {
    qInstallMessageHandler(Silent);
    QApplication application(argc, argv);
    QApplication::setStyle(QStringLiteral("Fusion"));
    QApplication::setEffectEnabled(Qt::UI_AnimateMenu, false);
    QMainWindow window;
    QMenuBar& bar = *window.menuBar();
    QMenu& menu = *bar.addMenu(QStringLiteral("Filer"));
    QAction* entry = menu.addAction(QStringLiteral("Printer"));
    QMenu& inner = *menu.addMenu(QStringLiteral("Dan log"));
    QAction* innerEntry = inner.addAction(QStringLiteral("Alt"));
    window.show();
    if (!QTest::qWaitForWindowExposed(&window)) return 1;

    int chosen = 0;
    for (QAction* action : {entry, innerEntry}) QObject::connect(action, &QAction::triggered, &window, [&chosen] { ++chosen; });
    const auto open = [&] { Click(bar, bar.actionGeometry(menu.menuAction()).center()); };
    const long one = EachTime([&] {
        open();
        Click(menu, menu.actionGeometry(entry).center());
    });
    const long two = EachTime([&] {
        open();
        Click(menu, menu.actionGeometry(inner.menuAction()).center());
        Click(inner, inner.actionGeometry(innerEntry).center());
    });
    std::printf("%ld %ld\n", one, two);
    return chosen == 5000 ? 0 : 1;
}
