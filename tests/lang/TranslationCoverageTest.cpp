// The window in each shipped language, switched by its Language menu: no text a user sees or a
// screen reader speaks may be left in English, in the window, its menus, or any view it opens.

#include "AboutView.h"
#include "CarMarkerView.h"
#include "EnglishText.h"
#include "ExportDialogs.h"
#include "ExportFormatChoice.h"
#include "GPSTableView.h"
#include "GPSUtils.h"
#include "MainWindow.h"
#include "PreferencesDialog.h"
#include "SegmentDialogs.h"
#include "SnapshotSaveDialog.h"
#include "TimelineView.h"
#include "WindowTexts.h"
#include "WindowTitleBar.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QPointer>
#include <QProgressDialog>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <functional>
#include <memory>

namespace {

// Every view the window opens or makes after its start, each by how it comes up. Add new
// dialogs here: a row opens the view and returns it (the test closes it).
enum class Walk { AllWidgets, FileDialog, FileDialogTitle };
struct OpenedView {
    const char* name;
    Walk walk;
    std::function<QWidget*(MainWindow&, QWidget& scratch)> open;
};

const OpenedView openedViews[] = {
    {"about", Walk::AllWidgets,
     [](MainWindow& w, QWidget&) -> QWidget* {
         w.controller().OnShowAbout();
         return w.controller().outlets().aboutView;
     }},
    {"open movies", Walk::FileDialog,
     [](MainWindow& w, QWidget&) -> QWidget* {
         w.controller().OnOpenMediaFile(nullptr);
         return w.findChild<QFileDialog*>(QStringLiteral("openDialog"));
     }},
    {"open MBTiles", Walk::FileDialog,
     [](MainWindow& w, QWidget&) -> QWidget* {
         w.controller().OnOpenMapFile(false);
         return w.findChild<QFileDialog*>(QStringLiteral("mbtilesDialog"));
     }},
    // A folder chooser: its filter is Qt's own.
    {"open tile folder", Walk::FileDialogTitle,
     [](MainWindow& w, QWidget&) -> QWidget* {
         w.controller().OnOpenMapFile(true);
         return w.findChild<QFileDialog*>(QStringLiteral("tileFolderDialog"));
     }},
    {"scan progress", Walk::AllWidgets,
     [](MainWindow& w, QWidget&) -> QWidget* {
         w.controller().openArguments({std::filesystem::temp_directory_path() / "dashtrack-no-such-folder"});
         return w.findChild<QProgressDialog*>(QStringLiteral("scanProgress"));
     }},
    {"preferences", Walk::AllWidgets,
     [](MainWindow& w, QWidget&) -> QWidget* {
         w.controller().OnPreference(nullptr);
         return w.controller().preferencesDialog();
     }},
    // With a refusal beside each field that has one: values out of range are never stored.
    {"preferences refusing", Walk::AllWidgets,
     [](MainWindow& w, QWidget&) -> QWidget* {
         w.controller().OnPreference(nullptr);
         PreferencesDialog* dialog = w.controller().preferencesDialog();
         auto* clock = dialog->findChild<QLineEdit*>(QStringLiteral("clockCorrection"));
         clock->setText(QStringLiteral("99:99"));
         emit clock->editingFinished();
         dialog->findChild<QComboBox*>(QStringLiteral("mapSource"))->setCurrentIndex(3);  // custom URL
         auto* url = dialog->findChild<QLineEdit*>(QStringLiteral("customUrl"));
         url->setText(QStringLiteral("ftp://tiles"));
         emit url->editingFinished();
         dialog->findChild<QSpinBox*>(QStringLiteral("cacheSize"))->setValue(1);
         return dialog;
     }},
    // The dialogs below come up only with movies loaded, a frame on screen or a job under way: they
    // are made here by the functions the window makes them with. A file name of digits only keeps
    // its own letters out of the count.
    {"snapshot", Walk::FileDialog,
     [](MainWindow& w, QWidget&) -> QWidget* { return makeSnapshotSaveDialog(&w, w.controller().settings()); }},
    {"export track", Walk::FileDialog,
     [](MainWindow& w, QWidget&) -> QWidget* {
         return makeExportSaveDialog(&w, exportChoiceOfFormat(std::nullopt), QDir::tempPath(), QStringLiteral("2024"));
     }},
    {"export progress", Walk::AllWidgets,
     [](MainWindow& w, QWidget&) -> QWidget* { return makeExportProgress(&w, QStringLiteral("2024"), 3); }},
    {"export failure", Walk::AllWidgets,
     [](MainWindow& w, QWidget&) -> QWidget* { return makeExportFailure(&w, QStringLiteral("2024"), {}); }},
    {"save segment", Walk::FileDialog,
     [](MainWindow& w, QWidget&) -> QWidget* {
         return makeSegmentSaveDialog(&w, QStringLiteral("mov"), QDir::tempPath(), QStringLiteral("2024"));
     }},
    {"segment progress", Walk::AllWidgets,
     [](MainWindow& w, QWidget&) -> QWidget* { return makeSegmentProgress(&w, 1000); }},
    {"segment failure", Walk::AllWidgets,
     [](MainWindow& w, QWidget&) -> QWidget* { return makeSegmentFailure(&w, {}); }},
    // Made only on the window systems that draw their own title bar, and for a car on the map.
    {"title bar", Walk::AllWidgets, [](MainWindow&, QWidget& scratch) -> QWidget* { return new WindowTitleBar(scratch); }},
    {"car", Walk::AllWidgets, [](MainWindow&, QWidget& scratch) -> QWidget* { return new CarMarkerView(&scratch); }},
};

struct Language {
    const char* code;
    const char* item;  // the Language menu's item
};
const Language languages[] = {{"zh_CN", "languageChinese"}, {"ja", "languageJananese"}, {"vi", "languageVietnamese"}};

class TranslationCoverageTest : public ::testing::Test {
protected:
    TranslationCoverageTest() : settings_(settingsIn(dir_)), window_(settings_) {
        QEvent activation(QEvent::WindowActivate);
        QApplication::sendEvent(&window_, &activation);
    }

    // A settings file to change (without one the store keeps its defaults), with no language yet.
    static SettingsLocation settingsIn(const QTemporaryDir& dir) {
        const std::filesystem::path file = std::filesystem::path(dir.path().toStdString()) / "Env.plist";
        std::ofstream(file) << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                               "<plist version=\"1.0\"><dict><key>MapSource</key><string>offline</string>"
                               "</dict></plist>\n";
        return {.userFile = file, .shippedFile = std::nullopt};
    }

    void choose(const char* item) {
        window_.findChild<QAction*>(QString::fromLatin1(item))->trigger();
        // The language change reaches the widgets as posted events.
        QApplication::processEvents();
    }

    // Everything shown now: the window and each view it opens.
    std::vector<ShownText> allTexts() {
        std::vector<ShownText> texts = widgetTexts(window_);
        for (const OpenedView& view : openedViews) {
            QWidget scratch;
            QPointer<QWidget> opened = view.open(window_, scratch);
            if (opened == nullptr) {
                ADD_FAILURE() << view.name << " did not open";
                continue;
            }
            auto* fileDialog = qobject_cast<QFileDialog*>(opened.data());
            std::vector<ShownText> more = fileDialog != nullptr ? fileDialogTexts(*fileDialog) : widgetTexts(*opened);
            if (view.walk == Walk::FileDialogTitle) more.resize(std::min<std::size_t>(more.size(), 1));
            for (const ShownText& text : more)
                texts.push_back({QString::fromLatin1(view.name) + QStringLiteral(": ") + text.where, text.text});
            if (opened->isWindow()) opened->close();
            if (opened != nullptr && opened != window_.controller().outlets().aboutView) delete opened.data();
        }
        window_.controller().OnHideAbout();
        return texts;
    }

    QTemporaryDir dir_;
    GPSUtils settings_;
    MainWindow window_;
};

TEST_F(TranslationCoverageTest, EveryTextOfTheWindowAndItsViewsIsTranslated) {
    // A marked span is read out with the timeline.
    window_.controller().outlets().timeline->setMarkStart(0);
    window_.controller().outlets().timeline->setMarkEnd(0);
    EnglishVocabulary english;
    const std::vector<ShownText> englishTexts = allTexts();
    for (const ShownText& text : englishTexts) addWords(english, text.text);
    ASSERT_GT(english.size(), 100) << "the English window has its words";

    for (const Language& language : languages) {
        choose(language.item);
        int offenders = 0;
        for (const ShownText& text : allTexts()) {
            if (!readsEnglish(text.text, QString::fromLatin1(language.code), english)) continue;
            ++offenders;
            ADD_FAILURE() << language.code << " " << text.where.toStdString() << ": \"" << text.text.toStdString()
                          << "\"";
        }
        EXPECT_EQ(offenders, 0) << language.code;
    }
}

TEST_F(TranslationCoverageTest, LanguageItemsSwitchTheWindowBackAndForthAndAreRemembered) {
    const struct {
        const char* item;
        const char* code;
        const char* fileMenu;
    } rows[] = {
        {"languageJananese", "ja", "ファイル(&F)"},
        {"languageChinese", "zh_CN", "文件(&F)"},
        {"languageVietnamese", "vi", "&Tệp"},
        {"languageEnglish", "en", "&File"},
    };
    QMenu* fileMenu = window_.findChild<QMenu*>(QStringLiteral("menuFile"));
    for (const auto& row : rows) {
        choose(row.item);
        EXPECT_EQ(fileMenu->title(), QString::fromUtf8(row.fileMenu)) << row.code;
        EXPECT_EQ(settings_.language(), std::optional<std::string>(row.code));
        for (const Language& other : languages)
            EXPECT_EQ(window_.findChild<QAction*>(QString::fromLatin1(other.item))->isChecked(),
                      std::string(other.code) == row.code)
                << row.code << " " << other.item;
    }
}

TEST_F(TranslationCoverageTest, TextsMadeInCodeFollowTheLanguage) {
    choose("languageJananese");
    const MainWindowOutlets& o = window_.controller().outlets();
    // The unit stays the chosen one, not the interface description's default.
    const QString unit = o.txtSpeedUnit->text();
    EXPECT_TRUE(unit == QStringLiteral("MPH") || unit == QStringLiteral("KM/H")) << unit.toStdString();
    EXPECT_EQ(o.unitKMH->isChecked(), unit == QStringLiteral("KM/H"));
    EXPECT_EQ(o.playListView->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("ファイル"));
    EXPECT_EQ(o.timeline->accessibleDescription(), QStringLiteral("0:00 の間、速度の記録はありません"));
    choose("languageEnglish");
    EXPECT_EQ(o.playListView->model()->headerData(0, Qt::Horizontal).toString(), QStringLiteral("File"));
    EXPECT_EQ(o.timeline->accessibleDescription(), QStringLiteral("No speed recorded over 0:00"));
}

// An open dialog changes language with the window: its interface description, the texts it makes
// in code, and a refusal already shown beside a field, with the choices it shows left alone.
TEST_F(TranslationCoverageTest, AnOpenPreferencesDialogFollowsTheLanguage) {
    window_.controller().OnPreference(nullptr);
    PreferencesDialog* dialog = window_.controller().preferencesDialog();
    ASSERT_NE(dialog, nullptr);
    auto* clock = dialog->findChild<QLineEdit*>(QStringLiteral("clockCorrection"));
    clock->setText(QStringLiteral("99:99"));
    emit clock->editingFinished();
    auto* source = dialog->findChild<QComboBox*>(QStringLiteral("mapSource"));
    source->setCurrentIndex(4);  // offline
    const auto shown = [&] {
        return std::vector<QString>{
            dialog->windowTitle(),
            dialog->findChild<QLabel*>(QStringLiteral("clockCorrectionError"))->text(),
            dialog->findChild<QPushButton*>(QStringLiteral("closeButton"))->text(),
            source->itemText(0),
            source->currentText(),
        };
    };
    const struct {
        const char* item;
        std::vector<const char*> texts;
    } rows[] = {
        {"languageJananese",
         {"環境設定", "±HH:MM の形式で、-23:59～+23:59 の範囲で入力してください。", "閉じる", "OpenStreetMap",
          "オフラインで作業"}},
        {"languageEnglish",
         {"Preferences", "Use ±HH:MM, from -23:59 to +23:59.", "Close", "OpenStreetMap", "Work Offline"}},
    };
    for (const auto& row : rows) {
        choose(row.item);
        std::vector<QString> expected;
        for (const char* text : row.texts) expected.push_back(QString::fromUtf8(text));
        EXPECT_EQ(shown(), expected) << row.item;
    }
    EXPECT_EQ(settings_.clockCorrectionMinutes(), 0) << "the refused value is not stored on the way";
    dialog->close();
}

TEST(EnglishText, TellsTextsLeftInEnglishFromTranslatedOnes) {
    EnglishVocabulary english;
    addWords(english, QStringLiteral("Close window"));
    addWords(english, QStringLiteral("Sound on: click to mute"));
    const struct {
        const char* language;
        const char* text;
        bool english;
    } rows[] = {
        {"ja", "&Open…", true},
        {"ja", "開く(&O)…", false},
        {"ja", "10 秒戻る (Left)", false},
        {"ja", "Movies (*.mov *.MP4)", true},
        {"ja", "https://tile.example.org/{z}/{x}/{y}.png", false},
        {"ja", "Custom URL: https://tile.example.org/{z}.png", true},
        {"ja", "動画 (*.mov *.MOV *.mp4)", false},
        {"zh_CN", "Qt：LGPL 3\nLED 字体：SIL Open Font License 1.1", false},
        {"zh_CN", "打开 Tile 文件夹", true},
        {"vi", "Close window", true},
        {"vi", "Tua nhanh", false},
        {"vi", "Phóng to", false},
        {"vi", "Đóng window", true},
    };
    for (const auto& row : rows)
        EXPECT_EQ(readsEnglish(QString::fromUtf8(row.text), QString::fromLatin1(row.language), english), row.english)
            << row.language << " " << row.text;
}

}  // namespace
