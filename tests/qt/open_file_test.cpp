// SPDX-License-Identifier: MIT
#include "open_file.h"

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>
#include <QTest>

namespace vatro {
namespace {

/// A desktop whose command for opening files is a script of the test.
class TheDesktopsOpener : public ::testing::Test {
protected:
    void SetUp() override {
#ifdef Q_OS_WIN
        GTEST_SKIP() << "Windows has no such command";
#endif
        qputenv("PATH", directory_.path().toLocal8Bit());
    }
    ~TheDesktopsOpener() override {
        qputenv("PATH", before_);
    }
    void Answers(int code) {
        QFile script(directory_.filePath(QStringLiteral("xdg-open")));
        ASSERT_TRUE(script.open(QIODevice::WriteOnly));
        script.write("#!/bin/sh\necho \"$1\" >\"" + Asked().toLocal8Bit() + "\"\nexit " + QByteArray::number(code) + "\n");
        script.close();
        script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    }
    QString Asked() const {
        return directory_.filePath(QStringLiteral("asked"));
    }
    bool AskedFor(const QByteArray& path) const {
        return QTest::qWaitFor([&] {
            QFile asked(Asked());
            return asked.open(QIODevice::ReadOnly) && asked.readAll() == path + '\n';
        });
    }
    void Open() {
        OpenWithDesktop(QUrl::fromLocalFile(QStringLiteral("/log/Summary æ.txt")), [this] { ++failed; });
    }

    int failed = 0;

private:
    QTemporaryDir directory_;
    QByteArray before_ = qgetenv("PATH");
};

TEST_F(TheDesktopsOpener, IsGivenTheFile) {
    Answers(0);
    Open();
    EXPECT_TRUE(AskedFor("/log/Summary æ.txt"));
    QTest::qWait(100);
    EXPECT_EQ(failed, 0);
}

TEST_F(TheDesktopsOpener, HasFailedIfItFoundNoProgram) {
    Answers(3);
    Open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return failed > 0; }));
    EXPECT_EQ(failed, 1);
}

TEST_F(TheDesktopsOpener, HasFailedIfItCannotBeStarted) {
    Answers(0);
    QFile script(Asked().replace(QStringLiteral("asked"), QStringLiteral("xdg-open")));
    script.setPermissions(QFile::ReadOwner | QFile::WriteOwner);
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/nowhere/sh\n");
    script.close();
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    Open();
    EXPECT_TRUE(QTest::qWaitFor([this] { return failed > 0; }));
    EXPECT_EQ(failed, 1);
}

}  // namespace
}  // namespace vatro
