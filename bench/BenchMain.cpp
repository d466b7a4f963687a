// Benchmarks of the format models and the message page on large generated inputs. Every figure is
// printed with its ratio to a memcpy of as many bytes, timed in the same run, and with its target.
#include "BenchCases.h"
#include "BenchInputs.h"
#include "DatArchive.h"
#include "Mesfile.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QTextCodec>

#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <map>

namespace {

constexpr double MB = 1e6;
const char* const PEAK_OPTION = "--peak-mes";
const char* const PEAK_DAT_OPTION = "--peak-dat";

// Seconds per iteration of each benchmark: the median when repeated, else the single run.
class SummaryReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run>& runs) override
    {
        for (const Run& run : runs) {
            const bool median = run.run_type == Run::RT_Aggregate && run.aggregate_name == "median";
            if (run.run_type == Run::RT_Aggregate && !median)
                continue;
            const std::string name = run.run_name.function_name;
            if (median || !medians.count(name))
                seconds[name] = run.GetAdjustedRealTime() / benchmark::GetTimeUnitMultiplier(run.time_unit);
            if (median)
                medians.insert({name, true});
        }
        ConsoleReporter::ReportRuns(runs);
    }

    std::map<std::string, double> seconds;

private:
    std::map<std::string, bool> medians;
};

// The process's high-water mark of resident memory, in bytes (0 where /proc is missing).
double peakResident()
{
    QFile status(QStringLiteral("/proc/self/status"));
    if (!status.open(QIODevice::ReadOnly | QIODevice::Text))
        return 0;
    for (const QByteArray& line : status.readAll().split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').value(0).toDouble() * 1024;
    }
    return 0;
}

// Run as a child so the figure is this load alone: prints the peak before and after loading.
int measurePeakChild(int argc, char** argv, const char* path)
{
    QCoreApplication app(argc, argv);
    const double before = peakResident();
    if (std::strcmp(argv[1], PEAK_DAT_OPTION) == 0) {
        arcanum::DatArchive archive;
        QString error;
        archive.open(QFile::decodeName(path), error);
        std::printf("%.0f %.0f %d\n", before, peakResident(), int(archive.entries().size()));
        return 0;
    }
    arcanum::Mesfile mes(QFile::decodeName(path));
    mes.load(QTextCodec::codecForName("UTF-8"));
    std::printf("%.0f %.0f %d\n", before, peakResident(), mes.getEntryCount());
    return 0;
}

struct Peak
{
    double before = 0;
    double after = 0;
};

Peak measurePeak(const char* option, const QString& path)
{
    QProcess child;
    child.start(QCoreApplication::applicationFilePath(), {QString::fromLatin1(option), path});
    child.waitForFinished(-1);
    const QList<QByteArray> words = child.readAllStandardOutput().trimmed().split(' ');
    return {words.value(0).toDouble(), words.value(1).toDouble()};
}

const char* goalText(const BenchCase& c, char* buffer, std::size_t size)
{
    switch (c.goal) {
    case Goal::Seconds:
        std::snprintf(buffer, size, "< %g s", c.limit);
        break;
    case Goal::None:
        std::snprintf(buffer, size, "-");
        break;
    default:
        std::snprintf(buffer, size, ">= %g MB/s", c.limit);
        break;
    }
    return buffer;
}

const char* verdict(const BenchCase& c, double seconds, double rate)
{
    if (c.goal == Goal::None)
        return "";
    const bool met = c.goal == Goal::Seconds ? seconds < c.limit : rate >= c.limit;
    return met ? "met" : "MISSED";
}

void printSummary(const std::vector<BenchCase>& cases, const SummaryReporter& reporter, const Peak& peak, const Peak& dat,
                  double mesBytes)
{
    std::printf("\n%-40s %10s %10s %12s %8s  %-12s %s\n", "case", "ms", "MB/s", "memcpy MB/s", "ratio", "target",
                "");
    for (const BenchCase& c : cases) {
        const auto found = reporter.seconds.find(c.name);
        const auto copy = reporter.seconds.find(memcpyName(c.bytes));
        if (found == reporter.seconds.end() || copy == reporter.seconds.end())
            continue;
        const double rate = c.bytes / found->second / MB;
        const double copyRate = c.bytes / copy->second / MB;
        char target[32];
        std::printf("%-40s %10.1f %10.1f %12.1f %8.4f  %-12s %s", c.name.c_str(), found->second * 1e3, rate,
                    copyRate, rate / copyRate, goalText(c, target, sizeof target), verdict(c, found->second, rate));
        if (c.files > 0)
            std::printf("  (%.0f files/s)", c.files / found->second);
        std::printf("\n");
    }
    const double grown = peak.after - peak.before;
    std::printf("%-40s %10.1f MB peak (%.1f MB over the %.1f MB start) = %.2f x the %.1f MB file  target < 10 x  %s\n",
                "peak memory, mes load", peak.after / MB, grown / MB, peak.before / MB, grown / mesBytes,
                mesBytes / MB, grown < 10 * mesBytes ? "met" : "MISSED");
    const double directory = dat.after - dat.before;
    std::printf("%-40s %10.1f MB over the %.1f MB start  target < 40 MB  %s\n", "peak memory, archive directory 100 000",
                directory / MB, dat.before / MB, directory < 40 * MB ? "met" : "MISSED");
    std::fflush(stdout);
}

} // namespace

int main(int argc, char** argv)
{
    if (argc == 3 && (std::strcmp(argv[1], PEAK_OPTION) == 0 || std::strcmp(argv[1], PEAK_DAT_OPTION) == 0))
        return measurePeakChild(argc, argv, argv[2]);
    benchmark::Initialize(&argc, argv);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);

    // LOREKA_BENCH_DIR keeps the inputs between runs (for profiling); otherwise they are temporary.
    QTemporaryDir temporary;
    const QString kept = qEnvironmentVariable("LOREKA_BENCH_DIR");
    const QDir work(kept.isEmpty() ? temporary.path() : kept);
    const QString game = work.filePath(QStringLiteral("game"));
    const QString out = work.filePath(QStringLiteral("out"));
    const bool reuse = !kept.isEmpty() && QFile::exists(BenchInputs::mesPath(game));
    std::printf("%s the inputs in %s ...\n", reuse ? "Reusing" : "Writing", qPrintable(work.path()));
    std::fflush(stdout);
    if (!temporary.isValid() || !QDir().mkpath(game) || !QDir().mkpath(out) || (!reuse && !BenchInputs::write(game))) {
        std::fprintf(stderr, "loreka-bench: could not write the inputs into %s\n", qPrintable(work.path()));
        return 1;
    }
    {
        const std::vector<BenchCase> cases = registerBenchCases(game, out);
        SummaryReporter reporter;
        benchmark::RunSpecifiedBenchmarks(&reporter);
        const QString mes = BenchInputs::mesPath(game);
        const Peak peak = measurePeak(PEAK_OPTION, mes);
        const Peak dat = measurePeak(PEAK_DAT_OPTION, out + QStringLiteral("/directory.dat"));
        printSummary(cases, reporter, peak, dat, double(QFileInfo(mes).size()));
        // The benchmarks hold pages that must go before the application does.
        benchmark::ClearRegisteredBenchmarks();
    }
    benchmark::Shutdown();
    return 0;
}
