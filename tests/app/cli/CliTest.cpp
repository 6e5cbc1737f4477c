#include <QFile>
#include <QImage>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QtTest>

/// The tool itself, as a script would call it.
class CliTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_folder = std::make_unique<QTemporaryDir>(); }
    void makesAProjectAndTellsAboutIt();
    void takesASystemByItsParameters();
    void readsAndWritesFiles();
    void checksByTheLimitsThatAreSet();
    void rendersAPicture();
    void tellsWhereAParameterFileIsDamaged();
    void refuses_data();
    void refuses();
    void helpNamesEveryCommand();

private:
    /// Runs the tool in the temporary folder. \returns its exit status
    int run(const QStringList& arguments)
    {
        QProcess process;
        process.setWorkingDirectory(m_folder->path());
        process.start(QStringLiteral(PROGRAM_FILE), arguments);
        process.waitForFinished(60000);
        m_output = QString::fromUtf8(process.readAllStandardOutput());
        m_errors = QString::fromUtf8(process.readAllStandardError());
        return process.exitStatus() == QProcess::NormalExit ? process.exitCode() : -1;
    }
    [[nodiscard]] QString told(const char* key) const
    {
        for (const QString& line : m_output.split(QLatin1Char('\n'))) {
            if (line.startsWith(QLatin1String(key) + QStringLiteral(": ")))
                return line.mid(int(qstrlen(key)) + 2);
        }
        return QStringLiteral("(no line \"%1\")").arg(QLatin1String(key));
    }
    /// Whether the error goes on behind `what` with a reason, which is in the system's language.
    [[nodiscard]] bool tellsWhy(const char* what) const
    {
        return m_errors.contains(
            QRegularExpression(QString::fromUtf8(what) + QStringLiteral(": [^:\n]{8}")));
    }

    void write(const char* name, const QByteArray& text) const
    {
        QFile file(m_folder->filePath(QString::fromUtf8(name)));
        QVERIFY(file.open(QIODevice::WriteOnly));
        file.write(text);
    }
    [[nodiscard]] QByteArray content(const char* name) const
    {
        QFile file(m_folder->filePath(QString::fromUtf8(name)));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    /// A new project. \returns its file
    QString makeProject()
    {
        run({QStringLiteral("new"), QStringLiteral("."), QStringLiteral("测区")});
        return m_output.trimmed();
    }
    int run(const char* command, const QString& project, const QStringList& arguments)
    {
        return run(QStringList{QString::fromLatin1(command), project} + arguments);
    }

    std::unique_ptr<QTemporaryDir> m_folder;
    QString m_output;
    QString m_errors;
};

void CliTest::makesAProjectAndTellsAboutIt()
{
    QCOMPARE(run({QStringLiteral("new"), QStringLiteral("."), QStringLiteral("测区 1"),
                  QStringLiteral("--epsg"), QStringLiteral("32650")}),
             0);
    QCOMPARE(m_errors, QStringLiteral("Datum shift: none, the system is on WGS 84\n"));
    const QString file = m_output.trimmed();
    QCOMPARE(file, m_folder->filePath(QStringLiteral("测区 1/测区 1.kelx")));
    QCOMPARE(run({QStringLiteral("info"), file}), 0);
    QCOMPARE(m_errors, QString());
    QCOMPARE(told("project"), QStringLiteral("测区 1"));
    QCOMPARE(told("coordinate_system"), QStringLiteral("EPSG:32650"));
    QCOMPARE(told("projection"), QStringLiteral("UTM"));
    QCOMPARE(told("design_points"), QStringLiteral("0"));
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("测区 1/测区 1.db.lock"))));
}

void CliTest::takesASystemByItsParameters()
{
    QCOMPARE(
        run({QStringLiteral("new"), m_folder->path(), QStringLiteral("a"), QStringLiteral("--set"),
             QStringLiteral("ellipsoid_a=6378245"), QStringLiteral("ellipsoid_f=298.3"),
             QStringLiteral("project_type=1"), QStringLiteral("org_lon=114"),
             QStringLiteral("false_east=500000"), QStringLiteral("_7type=3"),
             QStringLiteral("_7rx=1"), QStringLiteral("_7py=5e6")}),
        0);
    QCOMPARE(run({QStringLiteral("info"), m_output.trimmed()}), 0);
    QCOMPARE(told("projection"), QStringLiteral("Transverse Mercator"));
}

void CliTest::readsAndWritesFiles()
{
    const QString project = makeProject();
    write("设计.csv", "1001,L10,100.0,200.0,30.0,45.0,1,0\n1002,L10,1,2,3,4,1,1\nheading\n");
    QCOMPARE(run("import-design", project, {QStringLiteral("设计.csv")}), 0);
    QVERIFY(m_output.contains(QStringLiteral("points added: 2")));
    QVERIFY(m_output.contains(QStringLiteral("lines skipped: 1")));
    write("survey.csv", "line num,point num,north\nL10,1001,100.25\n");
    QCOMPARE(run("import-survey", project, {QStringLiteral("survey.csv")}), 0);
    QCOMPARE(run("info", project, {}), 0);
    QCOMPARE(told("design_points"), QStringLiteral("2"));
    QCOMPARE(told("receiver_points"), QStringLiteral("2"));
    QCOMPARE(told("surveyed_points"), QStringLiteral("1"));
    QCOMPARE(told("survey_results"), QStringLiteral("1"));

    QCOMPARE(
        run("export", project,
            {QStringLiteral("design-csv"), QStringLiteral("out.csv"), QStringLiteral("--lines"),
             QStringLiteral("L10"), QStringLiteral("--only-unsurveyed")}),
        0);
    QCOMPARE(content("out.csv"),
             QByteArray("point_num,line_num,north,east,elevation,design code,azimuth,type,status\n"
                        "1001,L10,100.0000,200.0000,30.0000,1001,45.000000,1,0\n"));
    QCOMPARE(run("export", project, {QStringLiteral("survey-csv"), QStringLiteral("结果.csv")}), 0);
    QVERIFY(content("结果.csv").contains("\nL10,1001,"));
    QCOMPARE(run("export", project,
                 {QStringLiteral("survey-csv"), QStringLiteral("few.csv"),
                  QStringLiteral("--columns"), QStringLiteral("north,point_num,line_num")}),
             0);
    QCOMPARE(content("few.csv"), QByteArray("north,point num,line num\n100.2500,1001,L10\n"));
    QCOMPARE(run("export", project,
                 {QStringLiteral("survey-csv"), QStringLiteral("no.csv"), QStringLiteral("--lines"),
                  QStringLiteral("L11")}),
             1);
    QVERIFY(m_errors.contains(QStringLiteral("L11")));
    QCOMPARE(
        run("export", project, {QStringLiteral("design-csv"), QStringLiteral("no folder/out.csv")}),
        1);
    QVERIFY(m_errors.contains(QStringLiteral("no folder/out.csv")));
    QCOMPARE(run("import-survey", project, {QStringLiteral("missing.csv")}), 1);
    QVERIFY(m_errors.contains(QStringLiteral("missing.csv")));
}

void CliTest::checksByTheLimitsThatAreSet()
{
    const QString project = makeProject();
    write("s.csv", "line num,point num,antenna height,pdop,hdop,vdop,sat num\n"
                   "L10,1001,2,1.5,1,1,5\nL10,1002,2,9,9,9,6\n");
    QCOMPARE(run("import-survey", project, {QStringLiteral("s.csv")}), 0);
    QCOMPARE(run("check", project, {QStringLiteral("quality")}), 0);
    QCOMPARE(m_output,
             QStringLiteral("Point Num,Line Num,Describe,Value,Limit\n"
                            "1001,L10,Satellite Number Insufficient.,5.000,6.000\n"
                            "1002,L10,\"PDOP, HDOP AND VDOP Out-range.\",-1.000,-1.000\n"));
    QCOMPARE(run("set-quality", project,
                 {QStringLiteral("sat_num_min=5"), QStringLiteral("re_code=g"),
                  QStringLiteral(" pdop_max = 9 "), QStringLiteral("vdop_max=-3")}),
             0);
    QCOMPARE(run("list-quality", project, {}), 0);
    QVERIFY(m_output.contains(QStringLiteral("\nsat_num_min=5\n")));
    QVERIFY(m_output.contains(QStringLiteral("\nre_code=G\n")));
    QCOMPARE(run("check", project,
                 {QStringLiteral("quality"), QStringLiteral("--out"), QStringLiteral("r.csv")}),
             0);
    QCOMPARE(content("r.csv"), QByteArray("Point Num,Line Num,Describe,Value,Limit\n"
                                          "1002,L10,HDOP AND VDOP Out-range.,-1.000,-1.000\n"));
    for (const char* bad : {"re_code=C", "pdop_max=many", "pdop_max=inf", "pdop_max=1,000",
                            "colour=1", "pdop_max", "sat_num_min=6.5", "ant_height_max=100.1"}) {
        QCOMPARE(run("set-quality", project, {QString::fromLatin1(bad)}), 1);
        QCOMPARE(m_errors.count(QLatin1Char('\n')), 1);
    }
    QCOMPARE(run("check", project, {QStringLiteral("colours")}), 2);
}

void CliTest::rendersAPicture()
{
    const QString project = makeProject();
    const auto render = [&](const char* file) {
        return run("render", project,
                   {QStringLiteral("survey"), QString::fromUtf8(file), QStringLiteral("--size"),
                    QStringLiteral("300x200")});
    };
    QCOMPARE(render("图.PNG"), 0);
    QCOMPARE(QImage::fromData(content("图.PNG")).size(), QSize(300, 200));
    QCOMPARE(render("picture.zip"), 1);
    QVERIFY2(tellsWhy("\"picture.zip\""), qPrintable(m_errors));
    QVERIFY(!QFile::exists(m_folder->filePath(QStringLiteral("picture.zip"))));
    QCOMPARE(render("no folder/picture.png"), 1);
    QVERIFY2(tellsWhy("\"no folder/picture.png\""), qPrintable(m_errors));
}

void CliTest::tellsWhereAParameterFileIsDamaged()
{
    const QString project = makeProject();
    write("测区/qc_param.ini", "<dictionary>\n  <entry key=\"re_code\"/>\n</dictionary>");
    QCOMPARE(run("info", project, {}), 1);
    QVERIFY2(m_errors.contains(QStringLiteral("qc_param.ini\" cannot be read: line 2: ")),
             qPrintable(m_errors));
    QVERIFY(QFile::remove(m_folder->filePath(QStringLiteral("测区/qc_param.ini"))));
    QCOMPARE(run("info", project, {}), 1);
    QVERIFY2(tellsWhy("qc_param.ini\" cannot be read"), qPrintable(m_errors));
}

void CliTest::refuses_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("status");
    QTest::addColumn<QString>("why");
    const auto row = [](const char* name, const char* arguments, int status, const char* why) {
        QTest::newRow(name) << QString::fromUtf8(arguments).split(QLatin1Char(' '),
                                                                  Qt::SkipEmptyParts)
                            << status << QString::fromUtf8(why);
    };
    row("no command", "", 2, "no command");
    row("unknown command", "frobnicate", 2, "frobnicate");
    row("too few arguments", "new .", 2, "usage: skyquill-cli new");
    row("unknown option", "info a --all", 2, "--all");
    row("option without value", "new . a --epsg", 2, "--epsg");
    row("both systems", "new . a --epsg 32650 --set org_lon=1", 2, "exclude");
    row("impossible name", "new . a.b", 1, "\".\"");
    row("missing folder", "new missing a", 1, "missing");
    row("unknown system", "new . a --epsg 999999", 1, "999999");
    row("unknown parameter", "new . a --set colour=1", 1, "colour");
    row("option twice", "export a survey-csv b --lines 1 --lines 2", 2, "twice");
    row("unknown column", "export a survey-csv b --columns line_num,point_num,colour", 2, "colour");
    row("columns without number", "export a survey-csv b --columns line_num", 2, "point_num");
    row("columns of a design", "export a design-csv b --columns line_num", 2, "design-csv");
    row("impossible parameter", "new . a --set ellipsoid_a=6e6 ellipsoid_f=298,3 project_type=1", 1,
        "ellipsoid_f must be a decimal number, such as 298.257, not \"298,3\"");
    row("missing project", "info missing.kelx", 1, "missing.kelx");
}

void CliTest::refuses()
{
    QFETCH(QStringList, arguments);
    QFETCH(int, status);
    QFETCH(QString, why);
    QCOMPARE(run(arguments), status);
    QVERIFY2(m_errors.contains(why), qPrintable(m_errors));
    QCOMPARE(m_errors.count(QLatin1Char('\n')), 1);
    QCOMPARE(m_output, QString());
    QVERIFY2(QDir(m_folder->path()).isEmpty(), "something was made");
}

void CliTest::helpNamesEveryCommand()
{
    QCOMPARE(run({QStringLiteral("--help")}), 0);
    for (const char* command :
         {"new DIR NAME", "info PROJECT", "import-design PROJECT", "import-survey PROJECT",
          "export PROJECT", "check PROJECT", "set-quality PROJECT", "list-quality PROJECT"})
        QVERIFY(m_output.contains(QLatin1String(command)));
}

QTEST_GUILESS_MAIN(CliTest)
#include "CliTest.moc"
