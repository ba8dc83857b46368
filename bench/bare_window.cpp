// SPDX-License-Identifier: MIT
//
// The yardsticks of the window: what Qt Widgets needs by itself. This program links nothing else.
//
//   vatro-bench-empty               shows an empty window until it is ended
//   vatro-bench-empty keys ROWS     presses keys in a field that fill and empty a list of so many rows; prints the seconds of one pair
//   vatro-bench-empty rows ROWS     adds so many rows to a list, one by one; prints the seconds of processor time
#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMainWindow>
#include <QStringListModel>
#include <QVBoxLayout>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>

namespace {

const QString kRow = QStringLiteral("DL9QQQ         0001/0345 12:07");

/// A window with a list above a field.
class Bare : public QObject {
public:
    Bare() {
        auto* const content = new QWidget;
        auto* const layout = new QVBoxLayout(content);
        layout->addWidget(list_);
        layout->addWidget(field_);
        list_->setModel(&model_);
        list_->setUniformItemSizes(true);
        list_->viewport()->installEventFilter(this);
        window_.setCentralWidget(content);
        window_.resize(800, 600);
        painted_ = false;
        window_.show();
        Wait();
        field_->setFocus();
    }

    bool eventFilter(QObject* /*watched*/, QEvent* event) override {
        if (event->type() == QEvent::Paint) painted_ = true;
        return false;
    }

    double Keys(int rows) {
        constexpr int kPairs = 100;
        QStringList found;
        for (int row = 0; row < rows; ++row) found.append(kRow);
        connect(field_, &QLineEdit::textChanged, &model_,
                [&](const QString& text) { model_.setStringList(text.size() > 1 ? found : QStringList()); });
        Press(Qt::Key_1, QStringLiteral("1"));
        const auto start = std::chrono::steady_clock::now();
        for (int pair = 0; pair < kPairs; ++pair) {
            painted_ = false;
            Press(Qt::Key_L, QStringLiteral("L"));
            Wait();
            painted_ = false;
            Press(Qt::Key_Backspace, QStringLiteral("\b"));
            Wait();
        }
        return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count() / kPairs;
    }

    double Rows(int rows) {
        const std::clock_t start = std::clock();
        for (int row = 0; row < rows; ++row) {
            model_.insertRow(row);
            model_.setData(model_.index(row), kRow);
        }
        painted_ = false;
        list_->scrollToBottom();
        list_->viewport()->update();
        Wait();
        return static_cast<double>(std::clock() - start) / CLOCKS_PER_SEC;
    }

private:
    void Press(Qt::Key key, const QString& text) {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(field_, &press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier, text);
        QCoreApplication::sendEvent(field_, &release);
    }

    void Wait() {
        while (!painted_) QCoreApplication::processEvents();
        // The filter sees the event before the list does, so the list has been painted by the next round.
        QCoreApplication::processEvents();
    }

    QMainWindow window_;
    QStringListModel model_;
    QLineEdit* field_ = new QLineEdit;
    QListView* list_ = new QListView;
    bool painted_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc == 3) {
        Bare bare;
        const int rows = std::atoi(argv[2]);
        std::printf("%.9f\n", std::strcmp(argv[1], "keys") == 0 ? bare.Keys(rows) : bare.Rows(rows));
        return 0;
    }
    QMainWindow window;
    window.resize(800, 600);
    window.show();
    return QApplication::exec();
}
