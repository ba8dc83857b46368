// SPDX-License-Identifier: MIT
#include "application.h"

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLibraryInfo>
#include <QTranslator>

#include "accessibility.h"

// Must be outside of every namespace, because Qt's resource macro requires it.
static void UseIcon() {
    Q_INIT_RESOURCE(icon);
}

namespace vatro {

namespace {

constexpr double kLeastPoints = 11;

/// A text of Qt, by its context and its English.
struct QtText {
    constexpr QtText(const char* its, const char* words) : context(its), english(words) {}
    const char* context;
    const char* english;
};
struct Word {
    QtText text;
    const char16_t* danish;
};
/// Words that Qt's translation lacks in some versions.
constexpr Word kWords[]{
    {QtText("QAbstractFileIconProvider", "Folder"), u"Mappe"},
    {QtText("QAbstractFileIconProvider", "File Folder"), u"Mappe"},
    {QtText("QAbstractFileIconProvider", "Drive"), u"Drev"},
    {QtText("QAbstractFileIconProvider", "File"), u"Fil"},
    {QtText("QAbstractFileIconProvider", "%1 File"), u"%1-fil"},
    {QtText("QAbstractFileIconProvider", "Unknown"), u"Ukendt"},
    {QtText("QPrintSettingsOutput", "Double Sided Printing"), u"Tosidet udskrift"},
    {QtText("QPrintSettingsOutput", "Off"), u"Fra"},
    {QtText("QPrintSettingsOutput", "Long side binding"), u"Vend om den lange kant"},
    {QtText("QPrintSettingsOutput", "Short side binding"), u"Vend om den korte kant"},
    {QtText("QShortcut", "Shift"), u"Skift"},
};

/// Translates these words. Installed before Qt's own translation, which is therefore asked first.
class MissingWords : public QTranslator {
public:
    using QTranslator::QTranslator;
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* text, const char* /*meaning*/, int /*number*/) const override {
        for (const Word& word : kWords)
            if (qstrcmp(word.text.context, context) == 0 && qstrcmp(word.text.english, text) == 0) return QString::fromUtf16(word.danish);
        return {};
    }
};

}  // namespace

void PrepareApplication() {
    InstallAccessibility();
    QApplication::setApplicationName(QStringLiteral("vatro"));
    QApplication::setApplicationVersion(
        QStringLiteral("%1.%2.%3").arg(VATRO_VERSION_MAJOR).arg(VATRO_VERSION_MINOR).arg(VATRO_VERSION_PATCH));
    QApplication::setDesktopFileName(QStringLiteral("dk.vatro.Vatro"));
    QApplication::setQuitOnLastWindowClosed(false);
    UseIcon();
    QApplication::setWindowIcon(QIcon(QStringLiteral(":/icon/dk.vatro.Vatro.svg")));
    // Qt's own texts, for example in its file dialogue and context menus, if the translation is installed.
    QApplication::installTranslator(new MissingWords(qApp));
    auto* danish = new QTranslator(qApp);
    if (danish->load(QStringLiteral("qtbase_da"), QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QApplication::installTranslator(danish);
    QFont font = QApplication::font();
    font.setPointSizeF(qMax(font.pointSizeF(), kLeastPoints));
    font.setStyleStrategy(kPlainLetters);
    QApplication::setFont(font);
}

}  // namespace vatro
