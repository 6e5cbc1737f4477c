#include "bench/Limits.h"
#include "exchange/workbook/Workbook.h"

#include <QTemporaryDir>

#include <xlsxwriter.h>

#include <clocale>
#include <cstdlib>

// A sheet of 200,000 rows and 15 columns beside a loop that gives the same cells to the library.

namespace {

constexpr int kRows = 200000;
constexpr int kTexts = 3;
constexpr int kColumns = 15;

std::string textOf(int row, int column)
{
    return std::to_string(column * 1000000 + row);
}

double numberOf(int row, int column)
{
    return row * 0.125 + column / 3.0;
}

double plainLoop(const std::string& path, const std::string& folder)
{
    return bench::secondsOf([&] {
        std::string temporary = folder;
        lxw_workbook_options options{};
        options.constant_memory = LXW_TRUE;
        options.tmpdir = temporary.data();
        lxw_workbook* const book = workbook_new_opt(path.c_str(), &options);
        lxw_worksheet* const sheet = workbook_add_worksheet(book, "S");
        lxw_format* const text = workbook_add_format(book);
        format_set_border(text, LXW_BORDER_THIN);
        lxw_format* const number = workbook_add_format(book);
        format_set_border(number, LXW_BORDER_THIN);
        format_set_num_format(number, "0.000");
        for (int row = 0; row < kRows; ++row) {
            for (int column = 0; column < kColumns; ++column) {
                const auto at = static_cast<lxw_row_t>(row);
                const auto place = static_cast<lxw_col_t>(column);
                if (column < kTexts)
                    worksheet_write_string(sheet, at, place, textOf(row, column).c_str(), text);
                else
                    worksheet_write_number(sheet, at, place, numberOf(row, column), number);
            }
        }
        if (workbook_close(book) != LXW_NO_ERROR)
            std::abort();
    });
}

double ownLoop(const QString& path)
{
    return bench::secondsOf([&] {
        Workbook book(path, {});
        std::vector<SheetColumn> columns(kColumns, {{}, SheetColumn::Form::Number, 3});
        for (int column = 0; column < kTexts; ++column)
            columns[static_cast<std::size_t>(column)].form = SheetColumn::Form::Text;
        Sheet& sheet = book.addSheet(QStringLiteral("S"), columns);
        for (int row = 0; row < kRows; ++row) {
            for (int column = 0; column < kTexts; ++column)
                sheet.text(textOf(row, column));
            for (int column = kTexts; column < kColumns; ++column)
                sheet.number(numberOf(row, column));
            sheet.endRow();
        }
        if (!book.commit().isDone())
            std::abort();
    });
}

void BM_Workbook(benchmark::State& state)
{
    const QTemporaryDir folder;
    for (auto _ : state) {
        const double ratio = bench::medianOf([&] {
            const double limit = plainLoop(folder.filePath(QStringLiteral("p.xlsx")).toStdString(),
                                           folder.path().toStdString());
            const double writing = ownLoop(folder.filePath(QStringLiteral("o.xlsx")));
            std::printf("workbook %.2f s, plain loop %.2f s\n", writing, limit);
            return writing / limit;
        });
        bench::report(state, "workbook of 200,000 x 15 cells / the library alone", ratio, 1.1);
    }
}

BENCHMARK(BM_Workbook)->Iterations(1);

} // namespace

int main(int argc, char* argv[])
{
    return bench::run(argc, argv);
}
