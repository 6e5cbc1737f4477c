#include "CsvFixture.h"
#include "exchange/SurveyCsvReader.h"

#include <QTextCodec>

namespace {

constexpr const char* kHeading = "line num,point num,remarks\n";

QByteArray encoded(const char* codec, const char* text)
{
    QTextCodec* const found = QTextCodec::codecForName(codec);
    return found->fromUnicode(QString::fromUtf8(text));
}

/// A file of one remark for each point of line "测线一", and what is read from it.
struct Remarks
{
    const char* name;
    QByteArray file;
    const char* encoding;
    std::size_t damaged;         ///< fields
    const char* firstRemark;     ///< of point 1
    const char* line = "测线一"; ///< where the points are
};

QByteArray gb18030(const char* rows)
{
    return encoded("GB18030", rows);
}

QByteArray utf16(const char* codec, const char* mark, const char* rows)
{
    QTextCodec* const found = QTextCodec::codecForName(codec);
    QTextCodec::ConverterState plain(QTextCodec::IgnoreHeader);
    const QString text = QString::fromUtf8(kHeading) + QString::fromUtf8(rows);
    return QByteArray(mark) + found->fromUnicode(text.constData(), text.size(), &plain);
}

class TextEncoding : public CsvFixture, public testing::WithParamInterface<Remarks>
{
};

} // namespace

TEST_P(TextEncoding, IsFoundByAllOfTheFile)
{
    const Remarks& remarks = GetParam();
    SurveyPoints points;
    ASSERT_TRUE(readSurveyCsv(file(remarks.file), points, progress, summary).isDone());
    EXPECT_EQ(summary.encoding.toStdString(), remarks.encoding);
    EXPECT_EQ(summary.undecoded.count, remarks.damaged);
    const SurveyPoint* const first = points.find(remarks.line, "1");
    ASSERT_NE(first, nullptr);
    EXPECT_EQ(first->remarks, remarks.firstRemark);
}

// clang-format off
INSTANTIATE_TEST_SUITE_P(Files, TextEncoding, testing::Values(
    Remarks{"Utf8WithACutCharacter", kHeading + QByteArray("测线一,1,石头在路\xE8\xBE\n测线一,2,路边\n"),
            "UTF-8", 1, "石头在路�"},
    // The bytes of an even number of characters also make Chinese of another encoding.
    Remarks{"Utf8WhoseBytesAreAlsoGb18030", QByteArray(kHeading) + "测线,1,大石\xE5\xA4\n",
            "UTF-8", 1, "大石�", "测线"},
    Remarks{"Utf8WithTheCommaBehindTheCut", "point num,remarks,line num\n1,路\xE8,测线一\n2,路边,测线一\n",
            "UTF-8", 1, "路�"},
    Remarks{"WesternAccentsAreNoChinese", kHeading + encoded("ISO-8859-1", "L,1,Höhe\nL,2,Fläche zerstört\nL,3,éé\n"),
            "UTF-8", 3, "H�he", "L"},
    Remarks{"WesternWordsOfAccentsAlone", kHeading + encoded("ISO-8859-1", "L,1,éé\n"), "UTF-8", 1, "��", "L"},
    Remarks{"Gb18030", kHeading + gb18030("测线一,1,石头\n"), "GB18030", 0, "石头"},
    Remarks{"Gb18030WithANameOfRareCharacters", kHeading + gb18030("L,1,王喆\nL,2,王喆\n"), "GB18030", 0, "王喆", "L"},
    Remarks{"Gb18030OfRareCharactersAlone", kHeading + gb18030("L,1,滹滹\nL,2,滹滹\n"), "GB18030", 0, "滹滹", "L"},
    Remarks{"Gb18030OfFourBytes", kHeading + gb18030("L,1,ئۇيغۇر\n"), "GB18030", 0, "ئۇيغۇر", "L"},
    Remarks{"Gb18030WithTheCommaBehindTheCut",
            gb18030("point num,remarks,line num\n1,路") + '\xB1' + gb18030(",测线一\n2,石头在路边石头在路边石头在路边,测线一\n"),
            "GB18030", 1, "路�"},
    Remarks{"Utf16LowByteFirst", utf16("UTF-16LE", "\xFF\xFE", "测线一,1,石头\n"), "UTF-16LE", 0, "石头"},
    Remarks{"Utf16HighByteFirst", utf16("UTF-16BE", "\xFE\xFF", "测线一,1,石头\r\n"), "UTF-16BE", 0, "石头"},
    Remarks{"Utf16WithoutAMark", utf16("UTF-16LE", "", "测线一,1,石头\n"), "UTF-16LE", 0, "石头"},
    Remarks{"Utf16WithHalfACharacterAtTheEnd", utf16("UTF-16LE", "\xFF\xFE", "测线一,1,石头") + 'x',
            "UTF-16LE", 1, "石头�"}),
    [](const auto& test) { return test.param.name; });
// clang-format on

TEST_F(CsvFixture, FaultsFarBehindInALargeFileAreCountedAndNamed)
{
    QByteArray text = kHeading;
    for (int i = 0; i < 60000; ++i)
        text += "测线一," + QByteArray::number(i) + ",石头\n";
    for (int i = 0; i < 107; ++i)
        text += "测线二," + QByteArray::number(i) + ",石\xE5\xA4\n";
    SurveyPoints points;
    ASSERT_TRUE(readSurveyCsv(file(text), points, progress, summary).isDone());
    EXPECT_EQ(points.lineCount(), 2U);
    EXPECT_EQ(summary.undecoded.count, 107U);
    ASSERT_EQ(summary.undecoded.first.size(), 107U);
    EXPECT_EQ(summary.undecoded.first[0].line, 60002U);
    EXPECT_EQ(summary.undecoded.first[0].text.toStdString(), "Field 3, \"石�\", is damaged.");
}
