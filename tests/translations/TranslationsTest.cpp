#include "lum_sdk/files/Translations.h"

#include "tests/support/Literals.h"
#include "tests/support/LogCapture.h"
#include "tests/support/TestFolder.h"

#include <QDirIterator>
#include <QProcess>
#include <QTranslator>
#include <QtTest>
#include <QXmlStreamReader>

namespace {

const QString kFolder = QStringLiteral(CATALOGUE_FOLDER);
const QString kConfiguration = QStringLiteral(SOURCE_FOLDER "/etc/Tarvona/config/Skyquill/");

/// What can be translated, wherever it stands.
struct Text
{
    QByteArray context;
    QByteArray source;
    QByteArray comment;
    bool isPlural = false;

    [[nodiscard]] QString name() const { return QString::fromUtf8(context + ": " + source); }
    /// Empty without a translation.
    [[nodiscard]] QString by(const QTranslator& translator) const
    {
        return translator.translate(context.constData(), source.constData(), comment.constData(),
                                    isPlural ? 2 : -1);
    }
};

/// The choice of the language names it in its own words.
const QString kOwnName = "简体中文"_q;

bool isChinese(const QString& text)
{
    static const QRegularExpression pattern("[\\x{2e80}-\\x{9fff}\\x{ff00}-\\x{ffef}]"_q);
    return text.contains(pattern);
}

std::vector<Text> textsOf(const QString& catalogue)
{
    QFile file(catalogue);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no file %s", qPrintable(catalogue));
    QXmlStreamReader xml(&file);
    std::vector<Text> texts;
    Text text;
    while (!xml.atEnd()) {
        if (!xml.readNextStartElement() && !xml.isEndElement())
            continue;
        if (xml.isEndElement()) {
            if (xml.name() == QLatin1String("message"))
                texts.push_back(text);
            continue;
        }
        if (xml.name() == QLatin1String("name")) {
            text.context = xml.readElementText().toUtf8();
        } else if (xml.name() == QLatin1String("message")) {
            text.comment.clear();
            text.isPlural = !xml.attributes().value(QLatin1String("numerus")).isEmpty();
        } else if (xml.name() == QLatin1String("source")) {
            text.source = xml.readElementText().toUtf8();
        } else if (xml.name() == QLatin1String("comment")) {
            text.comment = xml.readElementText().toUtf8();
        }
    }
    return texts;
}

/// The values of these attributes in a file of the configuration.
void collect(const QString& path, const char* context, const QStringList& attributes,
             std::vector<Text>& texts)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        qFatal("no file %s", qPrintable(path));
    QXmlStreamReader xml(&file);
    while (!xml.atEnd()) {
        xml.readNext();
        for (const QString& attribute : attributes) {
            const QByteArray value = xml.attributes().value(attribute).toUtf8();
            if (!value.isEmpty())
                texts.push_back({context, value, {}});
        }
    }
}

QStringList codeFolders()
{
    return QStringLiteral(CODE_FOLDERS).split(QLatin1Char(','));
}

} // namespace

/// All texts of the code, of the frame's layout and of the property grids, in both languages.
class TranslationsTest : public QObject
{
    Q_OBJECT

    std::vector<Text> m_texts;
    QTranslator m_chinese;
    QTranslator m_english;

private Q_SLOTS:
    void initTestCase()
    {
        const TestFolder folder;
        QProcess lupdate;
        lupdate.setWorkingDirectory(QStringLiteral(SOURCE_FOLDER));
        lupdate.start(QStringLiteral(LUPDATE), QStringList{"-silent"_q, "-locations"_q, "none"_q} +
                                                   codeFolders() +
                                                   QStringList{"-ts"_q, folder.path("all.ts")});
        QVERIFY(lupdate.waitForFinished(60000));
        m_texts = textsOf(folder.path("all.ts"));
        QVERIFY(m_texts.size() > 300);
        collect(kConfiguration + "Tool/DataProcess5/main_frame.xml"_q, "FrameLayout",
                {"caption"_q, "tip"_q}, m_texts);
        QDirIterator grids(kConfiguration + "ControlXml/DataProcess5"_q, {"*.xml"_q});
        while (grids.hasNext())
            collect(grids.next(), "ControlXml", {"caption"_q, "description"_q, "unit"_q}, m_texts);
        QVERIFY(m_chinese.load("skyquill_zh_CN"_q, kFolder));
        QVERIFY(m_english.load("skyquill_en"_q, kFolder));
    }

    void nothingUntranslatedReachesAChineseSession()
    {
        QStringList missing;
        for (const Text& text : m_texts) {
            if (text.by(m_chinese).isEmpty())
                missing << text.name();
        }
        QVERIFY2(missing.isEmpty(), qUtf8Printable(missing.join(QLatin1Char('\n'))));
    }

    void noChineseReachesAnEnglishSession()
    {
        QStringList chinese;
        QSet<QString> known;
        for (const Text& text : m_texts) {
            known << text.name();
            const QString english = text.by(m_english);
            const QString shown = english.isEmpty() ? QString::fromUtf8(text.source) : english;
            if (isChinese(shown) && !shown.startsWith(kOwnName))
                chinese << text.name();
        }
        for (const Text& text :
             textsOf(QStringLiteral(SOURCE_FOLDER "/translations/skyquill_en.ts")))
            QVERIFY2(known.contains(text.name()), qUtf8Printable(text.name()));
        QVERIFY2(chinese.isEmpty(), qUtf8Printable(chinese.join(QLatin1Char('\n'))));
    }

    /// Texts that no catalogue can reach. The captions of registered components are for tools,
    /// angles are typed in Chinese, too, and the workbook of a comparison is Chinese in any
    /// language.
    void noChineseInTheCodePassesTheCataloguesBy()
    {
        QSet<QString> known;
        for (const Text& text : m_texts)
            known << QString::fromUtf8(text.source);
        static const QRegularExpression literal("\"((?:[^\"\\\\]|\\\\.)*)\""_q);
        for (const QString& folder : codeFolders()) {
            QDirIterator files(QStringLiteral(SOURCE_FOLDER "/") + folder, {"*.cpp"_q, "*.h"_q},
                               QDir::Files, QDirIterator::Subdirectories);
            while (files.hasNext()) {
                const QString path = files.next();
                if (path.endsWith(QLatin1String("Components.cpp")) ||
                    path.endsWith(QLatin1String("/RegistrationTable.cpp")) ||
                    path.endsWith(QLatin1String("/AngleInput.cpp")) ||
                    path.endsWith(QLatin1String("/CoordCompareWorkbook.cpp")))
                    continue;
                for (const QByteArray& line : TestFolder::read(path).split('\n')) {
                    const QString code = QString::fromUtf8(line);
                    if (code.trimmed().startsWith(QLatin1String("//")))
                        continue;
                    for (auto match = literal.globalMatch(code); match.hasNext();) {
                        const QString text = match.next().captured(1);
                        QVERIFY2(!isChinese(text) || known.contains(text),
                                 qUtf8Printable(path + ": "_q + text));
                    }
                }
            }
        }
    }

    void chineseHasOneWordForOneThing()
    {
        for (const Text& text : m_texts) {
            const QString chinese = text.by(m_chinese);
            QVERIFY2(!chinese.contains("勘察"_q), qUtf8Printable(text.name()));
            const QByteArray button = QString(chinese).remove(QLatin1Char('&')).toUtf8();
            if (text.source == "OK")
                QCOMPARE(button, QByteArray("确定"));
            if (button == "确认")
                QCOMPARE(text.source, QByteArray("确认"));
        }
    }

    /// Also those of Qt: no German button below an English question.
    void aLanguageWithoutACatalogueGetsEnglish()
    {
        const LogCapture log;
        for (const char* language : {"de", "C", "en", ""}) { // the test's own language is German
            lum::loadTranslations(QString::fromLatin1(language), kFolder, "skyquill"_q);
            QCOMPARE(QCoreApplication::translate("TimeZomeDlg", "确认"), "OK"_q);
            QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"), "Cancel"_q);
            QVERIFY2(log.lines(ILogger::Level::Info).empty(), log.text().c_str());
            qDeleteAll(QCoreApplication::instance()->findChildren<QTranslator*>());
        }
        lum::loadTranslations("zh_CN"_q, kFolder, "skyquill"_q);
        QCOMPARE(QCoreApplication::translate("TimeZomeDlg", "确认"), "确认"_q);
        QCOMPARE(QCoreApplication::translate("QPlatformTheme", "OK"), "确定"_q);
        lum::loadTranslations("en"_q, kFolder + "/none"_q, "skyquill"_q);
        QVERIFY(log.holds("no catalogue"));
    }
};

QTEST_GUILESS_MAIN(TranslationsTest)
#include "TranslationsTest.moc"
