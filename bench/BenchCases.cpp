#include "BenchCases.h"

#include "ArtPreview.h"
#include "ArtFolder.h"
#include "ArtMaker.h"
#include "Artfile.h"
#include "DatArchive.h"
#include "DatWriter.h"
#include "GameSearch.h"
#include "GameView.h"
#include "PaletteMatcher.h"
#include "BenchInputs.h"
#include "ConversationGraph.h"
#include "ConversationView.h"
#include "DialogueFileNew.h"
#include "FormatRegistry.h"
#include "Manager.h"
#include "MainWindow.h"
#include "MesWidget.h"
#include "Mesfile.h"
#include "Proto.h"
#include "SafeSave.h"
#include "Script.h"
#include "ScriptDocument.h"
#include "ScriptSourceView.h"
#include "ScriptCompiler.h"
#include "ScriptDecompiler.h"

#include <QApplication>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QScrollBar>
#include <QTextStream>
#include <QTextCodec>

#include <benchmark/benchmark.h>
#include <zlib.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <memory>
#include <set>

namespace {

QByteArray readAll(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

double fileSize(const QString& path)
{
    return double(QFileInfo(path).size());
}

std::string stdPath(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

// Collects the cases and registers each as a wall-clock benchmark that reports bytes per second.
// A case's setup (loading the model it saves, say) runs only when the case runs, so a filtered run
// or a profiler pays only for the cases it asks for.
class Registrar
{
public:
    using Body = std::function<void()>;

    void add(const std::string& name, double bytes, Goal goal, double limit, Body body)
    {
        addPrepared(name, bytes, goal, limit, [body] { return body; });
    }

    void addPrepared(const std::string& name, double bytes, Goal goal, double limit, std::function<Body()> prepare)
    {
        cases.push_back({name, bytes, goal, limit});
        // Prepared again for every run and released after it, so no case runs on a heap that an
        // earlier case's models still fill.
        auto* bench = benchmark::RegisterBenchmark(name.c_str(), [bytes, prepare](benchmark::State& state) {
            const Body body = prepare();
            for (auto _ : state)
                body();
            state.SetBytesProcessed(int64_t(double(state.iterations()) * bytes));
        });
        bench->UseRealTime()->Unit(benchmark::kMillisecond);
    }

    // One memcpy of each byte count any case processes, timed in the same run.
    void addMemcpys() const
    {
        std::set<double> sizes;
        for (const BenchCase& c : cases)
            sizes.insert(c.bytes);
        for (double bytes : sizes) {
            auto* bench = benchmark::RegisterBenchmark(memcpyName(bytes).c_str(), [bytes](benchmark::State& state) {
                const auto size = std::size_t(bytes);
                std::vector<char> from(size, 'x');
                std::vector<char> to(size);
                for (auto _ : state) {
                    std::memcpy(to.data(), from.data(), size);
                    benchmark::DoNotOptimize(to.data());
                    benchmark::ClobberMemory();
                }
                state.SetBytesProcessed(int64_t(double(state.iterations()) * bytes));
            });
            bench->UseRealTime()->Unit(benchmark::kMillisecond);
        }
    }

    std::vector<BenchCase> cases;
};

// The part of a save that is the file system alone: the same bytes through the same safe-save path.
void addFileWrite(Registrar& r, const std::string& what, const QString& source, const QString& target)
{
    r.addPrepared("file write, " + what, fileSize(source), Goal::None, 0, [source, target] {
        const QByteArray bytes = readAll(source);
        return [bytes, target] { arcanum::SafeSave::write(target, bytes); };
    });
}

// Load and save through the message-file model (a .dlg file opens as its table).
void addMesfile(Registrar& r, const std::string& load, const std::string& save, const QString& path,
                const QString& target, const char* codecName)
{
    const double bytes = fileSize(path);
    QTextCodec* codec = QTextCodec::codecForName(codecName);
    r.add(load, bytes, Goal::TextLoad, 50, [path, codec] {
        std::unique_ptr<arcanum::Mesfile> mes(arcanum::Mesfile::getInstance(path));
        mes->load(codec);
        benchmark::DoNotOptimize(mes->getEntryCount());
    });
    r.addPrepared(save, bytes, Goal::TextSave, 100, [path, target, codec] {
        std::shared_ptr<arcanum::Mesfile> loaded(arcanum::Mesfile::getInstance(path));
        loaded->load(codec);
        return [loaded, target, codec] { loaded->save(target, codec); };
    });
}

void addMes(Registrar& r, const QString& game, const QString& out)
{
    const QString path = BenchInputs::mesPath(game);
    const QString target = out + QStringLiteral("/out.mes");
    addMesfile(r, "mes load (200 000 entries)", "mes save", path, target, "UTF-8");
    addFileWrite(r, "mes bytes", path, target);
}

// Load and save of one model: read(model, path) loads it, write(model, path) saves it. A text format
// is held to the text targets, a binary one to the binary target.
template <typename Model>
void addLoadSave(Registrar& r, const std::string& load, const std::string& save, bool text,
                                   const QString& path, const QString& target,
                                   std::function<void(Model&, const QString&)> read,
                                   std::function<void(Model&, const QString&)> write)
{
    const double bytes = fileSize(path);
    r.add(load, bytes, text ? Goal::TextLoad : Goal::Binary, text ? 50 : 300, [path, read] {
        Model model;
        read(model, path);
        benchmark::ClobberMemory();
    });
    r.addPrepared(save, bytes, text ? Goal::TextSave : Goal::Binary, text ? 100 : 300,
                  [path, target, read, write]() -> Registrar::Body {
                      auto loaded = std::make_shared<Model>();
                      read(*loaded, path);
                      return [loaded, target, write] { write(*loaded, target); };
                  });
    addFileWrite(r, save.substr(0, 3) + " bytes", path, target);
}

void addDialogue(Registrar& r, const QString& game, const QString& out)
{
    const QString path = BenchInputs::dlgPath(game);
    const QString target = out + QStringLiteral("/out.dlg");
    addLoadSave<arcanum::DialogueFileNew>(
        r, "dlg load, dialogue editor", "dlg save, dialogue editor", true, path, target,
        [](arcanum::DialogueFileNew& dialogue, const QString& from) {
            const QFile file(from);
            dialogue = arcanum::DialogueFileNew(&file);
            dialogue.load();
        },
        [](arcanum::DialogueFileNew& dialogue, const QString& to) {
            QFile file(to);
            dialogue.save(&file);
        });
    addMesfile(r, "dlg load, message table", "dlg save, message table", path, target, "Windows-1251");
}

// Scripts as text: each of decompiling and compiling 100 000 lines within a second, timed against a
// memcpy of the compiled file's bytes.
void addScriptSource(Registrar& r, const QString& path)
{
    const double bytes = fileSize(path);
    r.addPrepared("scr decompile (100 000 lines)", bytes, Goal::Seconds, 1.0, [path]() -> Registrar::Body {
        auto loaded = std::make_shared<arcanum::Script>();
        loaded->load(path);
        return [loaded] { benchmark::DoNotOptimize(arcanum::ScriptDecompiler::decompile(*loaded).size()); };
    });
    r.addPrepared("scr compile (100 000 lines)", bytes, Goal::Seconds, 1.0, [path]() -> Registrar::Body {
        arcanum::Script script;
        script.load(path);
        auto source = std::make_shared<std::string>(arcanum::ScriptDecompiler::decompile(script));
        return [source] { benchmark::DoNotOptimize(arcanum::ScriptCompiler::compile(*source).lines.size()); };
    });
}

void addScript(Registrar& r, const QString& game, const QString& out)
{
    addLoadSave<arcanum::Script>(
        r, "scr load (100 000 lines)", "scr save", false, BenchInputs::scriptPath(game),
        out + QStringLiteral("/00001out.scr"), [](arcanum::Script& script, const QString& from) { script.load(from); },
        [](arcanum::Script& script, const QString& to) { script.save(to); });
    addScriptSource(r, BenchInputs::scriptPath(game));
}

void addArt(Registrar& r, const QString& game, const QString& out)
{
    const QString path = BenchInputs::artPath(game);
    addLoadSave<arcanum::Artfile>(
        r, "art load (8 x 64 frames 256 x 256)", "art save", false, path, out + QStringLiteral("/out.art"),
        [](arcanum::Artfile& art, const QString& from) { art.load(stdPath(from)); },
        [](arcanum::Artfile& art, const QString& to) { art.save(to); });
    const double pixels = double(BenchInputs::ART_IMAGES) * BenchInputs::ART_FRAMES * BenchInputs::ART_SIDE
        * BenchInputs::ART_SIDE;
    r.addPrepared("art convertTo, every frame (pixels)", pixels, Goal::Pixels, 500, [path]() -> Registrar::Body {
        auto loaded = std::make_shared<arcanum::Artfile>();
        loaded->load(stdPath(path));
        return [loaded] {
            QImage image;
            for (unsigned i = 0; i < loaded->getImageCount(); ++i) {
                for (unsigned f = 0; f < loaded->getFrameCount(); ++f)
                    loaded->convertTo(image, 0, i, f);
            }
            benchmark::DoNotOptimize(image.constBits());
        };
    });
}

// The Art tab's preview playing all eight directions: one loop over the 64 frames, each tick drawn as the
// widget paints it. 64 ticks in 64/60 s keeps up with 60 frames a second, far above any sprite's rate.
void addArtPreview(Registrar& r, const QString& game)
{
    const QString path = BenchInputs::artPath(game);
    const int ticks = int(BenchInputs::ART_FRAMES);
    const double pixels = double(ticks) * BenchInputs::ART_IMAGES * BenchInputs::ART_SIDE * BenchInputs::ART_SIDE;
    const auto prepare = [path, ticks](bool warm) -> Registrar::Body {
        auto loaded = std::make_shared<arcanum::Artfile>();
        loaded->load(stdPath(path));
        auto preview = std::make_shared<ArtPreview>();
        preview->setArtfile(loaded.get());
        preview->setAllImages(true);
        preview->resize(preview->sizeHint());
        auto canvas = std::make_shared<QImage>(preview->size(), QImage::Format_ARGB32_Premultiplied);
        const auto loop = [loaded, preview, canvas, ticks] {
            for (int tick = 0; tick < ticks; ++tick) {
                preview->step(1);
                preview->render(canvas.get());
            }
            benchmark::DoNotOptimize(canvas->constBits());
        };
        if (warm)
            loop();
        return [loop, preview, loaded, warm] {
            if (!warm)
                preview->setArtfile(loaded.get()); // every picture converted again
            loop();
        };
    };
    r.addPrepared("art preview: 8 directions x 64 frames, playing", pixels, Goal::Seconds, double(ticks) / 60,
                  [prepare] { return prepare(true); });
    r.addPrepared("art preview: the same, first loop (converting)", pixels, Goal::None, 0,
                  [prepare] { return prepare(false); });
}

// A rendered creature as an artist hands it over: a shaded body with a little grain on a clear ground.
QImage renderedSprite(int side, int variant)
{
    QImage image(side, side, QImage::Format_ARGB32);
    image.fill(Qt::transparent);
    quint32 grain = 12345u + quint32(variant);
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            const double dx = (x - side / 2.0) / (side * 0.4);
            const double dy = (y - side / 2.0) / (side * 0.45) + 0.05 * std::sin(variant * 0.4 + x * 0.05);
            if (dx * dx + dy * dy > 1)
                continue;
            grain = grain * 1664525u + 1013904223u;
            const int jitter = int(grain >> 29) - 4;
            const double light = std::clamp(0.25 + 0.75 * (0.6 * std::sqrt(1 - dx * dx - dy * dy) - 0.3 * dx - 0.3 * dy),
                                            0.0, 1.0);
            image.setPixel(x, y, qRgb(std::clamp(int(190 * light) + 30 + jitter, 0, 255),
                                      std::clamp(int(150 * light) + 20 - jitter, 0, 255),
                                      std::clamp(int(110 * light + 40 * dx * dx) + jitter / 2, 0, 255)));
        }
    }
    return image;
}

QImage noiseImage(int side)
{
    QImage image(side, side, QImage::Format_RGB32);
    quint32 state = 99u;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x) {
            state = state * 1664525u + 1013904223u;
            image.setPixel(x, y, state >> 8);
        }
    }
    return image;
}

constexpr int MADE_SIDE = 256;
constexpr int MADE_FRAMES = 64;

std::vector<std::vector<QImage>> madeDirections()
{
    std::vector<std::vector<QImage>> directions(8);
    for (int f = 0; f < MADE_FRAMES; ++f)
        directions[std::size_t(f % 8)].push_back(renderedSprite(MADE_SIDE, f));
    return directions;
}

// Matching true colour to a palette (the import dialog, paste) and the two ways frames come in from a folder.
void addArtMaking(Registrar& r, const QString& out)
{
    const double framePixels = double(MADE_SIDE) * MADE_SIDE;
    const auto matching = [](QImage image, bool dither) -> Registrar::Body {
        arcanum::Artfile::Palette palette{};
        QString error;
        const QImage reference = renderedSprite(MADE_SIDE, 0);
        arcanum::ArtMaker::quantize({&reference}, palette, error);
        auto matcher = std::make_shared<arcanum::PaletteMatcher>(palette);
        return [matcher, image, dither] {
            benchmark::DoNotOptimize(matcher->match(image, dither).indices.constData());
        };
    };
    r.addPrepared("art match 256 x 256 sprite (pixels)", framePixels, Goal::Pixels, 20,
                  [matching] { return matching(renderedSprite(MADE_SIDE, 3), false); });
    r.addPrepared("art match sprite, dithered (pixels)", framePixels, Goal::None, 0,
                  [matching] { return matching(renderedSprite(MADE_SIDE, 3), true); });
    r.addPrepared("art match noise, every pixel new (pixels)", framePixels, Goal::None, 0,
                  [matching] { return matching(noiseImage(MADE_SIDE), false); });
    const double folderPixels = framePixels * MADE_FRAMES;
    const QString folder = out + QStringLiteral("/art-folder");
    r.addPrepared("art import, 64-frame folder", folderPixels, Goal::Seconds, 1.0, [folder]() -> Registrar::Body {
        arcanum::Artfile art;
        QString error;
        arcanum::ArtMaker::make(madeDirections(), {}, art, error);
        arcanum::ArtFolder::write(art, QStringLiteral("made"), folder, {}, error);
        return [folder] {
            arcanum::Artfile back;
            QString why;
            arcanum::ArtFolder::read(folder, back, why);
            benchmark::DoNotOptimize(back.getImageCount());
        };
    });
    r.addPrepared("art from 64 images (palette made)", folderPixels, Goal::Seconds, 1.0, []() -> Registrar::Body {
        auto directions = std::make_shared<std::vector<std::vector<QImage>>>(madeDirections());
        return [directions] {
            arcanum::Artfile art;
            QString error;
            arcanum::ArtMaker::make(*directions, {}, art, error);
            benchmark::DoNotOptimize(art.getImageCount());
        };
    });
}

void addProtos(Registrar& r, const QString& game, const QString& out)
{
    std::vector<std::string> sources;
    std::vector<std::string> targets;
    double bytes = 0;
    for (int i = 0; i < BenchInputs::PROTO_FILES; ++i) {
        const QString source = BenchInputs::protoDir(game) + BenchInputs::protoName(i);
        sources.push_back(stdPath(source));
        targets.push_back(stdPath(out + QLatin1Char('/') + BenchInputs::protoName(i)));
        bytes += fileSize(source);
    }
    r.add("pro load, 10 000 files", bytes, Goal::Seconds, 1.0, [sources] {
        arcanum::Proto proto;
        for (const std::string& source : sources)
            proto.load(source);
        benchmark::DoNotOptimize(proto.isLoaded());
    });
    r.addPrepared("pro save, 10 000 files", bytes, Goal::Binary, 300, [sources, targets] {
        auto loaded = std::make_shared<std::vector<std::unique_ptr<arcanum::Proto>>>();
        for (const std::string& source : sources) {
            loaded->push_back(std::make_unique<arcanum::Proto>());
            loaded->back()->load(source);
        }
        return [loaded, targets] {
            for (std::size_t i = 0; i < targets.size(); ++i)
                (*loaded)[i]->save(targets[i]);
        };
    });
    // The same bytes through the safe-save path file by file: what the file system alone costs.
    r.addPrepared("file write, 10 000 .pro", bytes, Goal::None, 0, [sources, targets] {
        auto contents = std::make_shared<std::vector<QByteArray>>();
        for (const std::string& source : sources)
            contents->push_back(readAll(QFile::decodeName(QByteArray::fromStdString(source))));
        return [contents, targets] {
            for (std::size_t i = 0; i < targets.size(); ++i)
                arcanum::SafeSave::write(QFile::decodeName(QByteArray::fromStdString(targets[i])), (*contents)[i]);
        };
    });
    // The scan reads no file; its ratio is to copying as many bytes as the files hold.
    r.addPrepared("Manager::reloadAll, 10 000 files", bytes, Goal::Seconds, 0.1, [game] {
        auto manager = std::make_shared<arcanum::Manager>();
        manager->setBaseDir(game);
        return [manager] {
            manager->reloadAll();
            benchmark::DoNotOptimize(manager->prototypes.size());
        };
    });
}

void addMesWidget(Registrar& r, const QString& game)
{
    const QString path = BenchInputs::mesPath(game);
    r.addPrepared("MesWidget shows 200 000 entries", fileSize(path), Goal::Seconds, 2.0, [path]() -> Registrar::Body {
        auto widget = std::make_shared<MesWidget>(nullptr, QStringLiteral("UTF-8"));
        widget->resize(1000, 700);
        widget->show();
        QApplication::processEvents();
        return [widget, path] {
            widget->openFile(path);
            QApplication::processEvents();
        };
    });
}

// A conversation of 1 000 lines: 250 NPC lines, each offering a response onward, one back to an earlier
// line and one that ends the conversation.
std::shared_ptr<arcanum::DialogueFileNew> conversation()
{
    QString text;
    for (int i = 0; i < 250; ++i) {
        const int npc = i * 4 + 1;
        text += QStringLiteral("{%1}{Line %1 of a long conversation, with some words to show}{}{}{}{}{}\n").arg(npc);
        text += QStringLiteral("{%1}{Go on}{}{1}{}{%2}{}\n").arg(npc + 1).arg(npc + 4);
        text += QStringLiteral("{%1}{Back}{}{1}{}{%2}{}\n").arg(npc + 2).arg((i * 37 % (i + 1)) * 4 + 1);
        text += QStringLiteral("{%1}{Bye}{}{1}{}{0}{}\n").arg(npc + 3);
    }
    auto dialogue = std::make_shared<arcanum::DialogueFileNew>();
    QTextStream stream(&text);
    dialogue->read(stream);
    dialogue->sortLines();
    return dialogue;
}

// The conversation window: laid out again after every edit, shown, and scrolled a screen at a time.
void addConversationGraph(Registrar& r)
{
    const double bytes = double(conversation()->toBytes().size());
    r.addPrepared("conversation graph: layout of 1 000 lines", bytes, Goal::Seconds, 1.0, []() -> Registrar::Body {
        const auto dialogue = conversation();
        return [dialogue] { benchmark::DoNotOptimize(ConversationGraph::build(*dialogue).nodes().size()); };
    });
    r.addPrepared("conversation view: 1 000 lines laid out and shown", bytes, Goal::Seconds, 1.0,
                  []() -> Registrar::Body {
                      const auto dialogue = conversation();
                      auto view = std::make_shared<ConversationView>();
                      view->resize(900, 700);
                      return [dialogue, view] {
                          view->showGraph(ConversationGraph::build(*dialogue));
                          QApplication::processEvents();
                      };
                  });
    // Smooth scrolling: one frame of the viewport painted well within a 60 Hz refresh.
    r.addPrepared("conversation view: one frame scrolled", bytes, Goal::Seconds, 1.0 / 60, []() -> Registrar::Body {
        auto view = std::make_shared<ConversationView>();
        view->resize(900, 700);
        view->showGraph(ConversationGraph::build(*conversation()));
        auto frame = std::make_shared<QImage>(view->viewport()->size(), QImage::Format_ARGB32_Premultiplied);
        return [view, frame] {
            QScrollBar* bar = view->verticalScrollBar();
            bar->setValue(bar->value() + bar->pageStep() > bar->maximum() ? 0 : bar->value() + bar->pageStep());
            QPainter painter(frame.get());
            view->render(&painter);
        };
    });
}

// The Script tab's Source view filled with a 100 000-line script: decompiled, laid out and coloured.
void addScriptSourceView(Registrar& r, const QString& game)
{
    const QString path = BenchInputs::scriptPath(game);
    r.addPrepared("Source view shows 100 000 script lines", fileSize(path), Goal::None, 0, [path]() -> Registrar::Body {
        QString error;
        std::shared_ptr<ScriptDocument> document = ScriptDocument::fromBytes(path, readAll(path), error);
        auto view = std::make_shared<ScriptSourceView>();
        view->resize(1000, 700);
        view->show();
        QApplication::processEvents();
        return [view, document] {
            view->setDocument(document.get());
            QApplication::processEvents();
            view->setDocument(nullptr);
        };
    });
}

// Archives: many small text-like entries, as the game's archives hold.
QVector<arcanum::DatWriter::File> archiveFiles(int count, int size, const QString& prefix)
{
    QVector<arcanum::DatWriter::File> files;
    files.reserve(count);
    for (int i = 0; i < count; ++i) {
        QByteArray bytes;
        for (int line = 0; bytes.size() < size; ++line)
            bytes += "{" + QByteArray::number(i * 100 + line) + "}{Item " + QByteArray::number(i % 977)
                     + " of the archive, line " + QByteArray::number(line) + "}\r\n";
        bytes.truncate(size);
        files.append({QStringLiteral("%1/folder%2/file%3.mes").arg(prefix).arg(i % 50).arg(i), bytes});
    }
    return files;
}

QString writeArchive(const QString& path, int count, int size, const QString& prefix = QStringLiteral("mes"))
{
    if (!QFileInfo::exists(path)) {
        QString error;
        arcanum::DatWriter::write(path, archiveFiles(count, size, prefix), error);
    }
    return path;
}

void addArchives(Registrar& r, const QString& outDir)
{
    const QString big = writeArchive(outDir + QStringLiteral("/directory.dat"), 100000, 16);
    r.add("archive: directory of 100 000 entries", fileSize(big), Goal::Seconds, 0.1, [big] {
        arcanum::DatArchive archive;
        QString error;
        archive.open(big, error);
        benchmark::DoNotOptimize(archive.entries().size());
    });
    const QString data = writeArchive(outDir + QStringLiteral("/data.dat"), 2000, 20000);
    const double unpacked = 2000.0 * 20000;
    r.addPrepared("archive: inflate 2 000 entries in memory (libdeflate)", unpacked, Goal::None, 0, [data] {
        auto archive = std::make_shared<arcanum::DatArchive>();
        QString error;
        archive->open(data, error);
        return [archive] {
            QByteArray bytes;
            QString reason;
            for (const arcanum::DatArchive::Entry& entry : archive->entries())
                if (!entry.isFolder())
                    archive->read(entry, bytes, reason);
        };
    });
    r.addPrepared("archive: the same with zlib", unpacked, Goal::None, 0, [data] {
        auto archive = std::make_shared<arcanum::DatArchive>();
        QString error;
        archive->open(data, error);
        QFile file(data);
        file.open(QIODevice::ReadOnly);
        auto packed = std::make_shared<std::vector<std::pair<QByteArray, uLong>>>();
        for (const arcanum::DatArchive::Entry& entry : archive->entries())
            if (!entry.isFolder()) {
                file.seek(entry.offset);
                packed->emplace_back(file.read(entry.packedSize), entry.size);
            }
        return [packed] {
            QByteArray out;
            for (const auto& [bytes, size] : *packed) {
                out.resize(qsizetype(size));
                uLongf written = size;
                uncompress(reinterpret_cast<Bytef*>(out.data()), &written,
                           reinterpret_cast<const Bytef*>(bytes.constData()), uLong(bytes.size()));
            }
        };
    });
    const QString target = outDir + QStringLiteral("/extracted");
    r.addPrepared("archive: extract 2 000 entries to files", unpacked, Goal::None, 0, [data, target] {
        auto archive = std::make_shared<arcanum::DatArchive>();
        QString error;
        archive->open(data, error);
        return [archive, target] {
            QByteArray bytes;
            QString reason;
            for (const arcanum::DatArchive::Entry& entry : archive->entries()) {
                if (entry.isFolder() || !archive->read(entry, bytes, reason))
                    continue;
                const QString path = target + QLatin1Char('/') + entry.path();
                QDir().mkpath(QFileInfo(path).absolutePath());
                QFile out(path);
                if (out.open(QIODevice::WriteOnly))
                    out.write(bytes);
            }
        };
    });
    r.addPrepared("archive: pack 2 000 entries (40 MB)", unpacked, Goal::Binary, 50.0, [outDir] {
        auto files = std::make_shared<QVector<arcanum::DatWriter::File>>(archiveFiles(2000, 20000, QStringLiteral("mes")));
        return [files, outDir] {
            QString error;
            arcanum::DatWriter::write(outDir + QStringLiteral("/packed.dat"), *files, error);
        };
    });
    const QString game = outDir + QStringLiteral("/layered");
    QDir().mkpath(game + QStringLiteral("/modules"));
    for (const QString& name : {QStringLiteral("tig.dat"), QStringLiteral("arcanum1.dat"), QStringLiteral("arcanum2.dat"),
                                QStringLiteral("arcanum3.dat"), QStringLiteral("modules/Arcanum.dat")})
        writeArchive(game + QLatin1Char('/') + name, 20000, 8, QStringLiteral("art"));
    r.add("game view: 5 archives, 100 000 entries", 100000, Goal::Seconds, 0.3, [game] {
        arcanum::GameView view;
        view.build(game);
        benchmark::DoNotOptimize(view.files().size());
    });
    // What the user waits for: the window scanning that game and filling its lists and art tree.
    const QString empty = outDir + QStringLiteral("/empty-game");
    QDir().mkpath(empty);
    r.addPrepared("window: lists of that game filled", 100000, Goal::Seconds, 1.0, [game, empty]() -> Registrar::Body {
        auto window = std::make_shared<MainWindow>();
        return [window, game, empty] {
            window->changeBaseDir(game);
            window->changeBaseDir(empty);
        };
    });
}

double folderSize(const QString& folder)
{
    double total = 0;
    QDirIterator it(folder, QDir::Files, QDirIterator::Subdirectories);
    while (it.hasNext()) {
        it.next();
        total += double(it.fileInfo().size());
    }
    return total;
}

// Find in game over 10 000 small files: a text most files lack, as text and as a regular expression,
// and the uses of a flag.
void addFind(Registrar& r, const QString& outDir)
{
    const QString game = outDir + QStringLiteral("/search-game");
    if (!QFileInfo::exists(game) && !BenchInputs::writeSearchGame(game))
        return;
    const double bytes = folderSize(game);
    const auto search = [game](const arcanum::GameSearch::Query& query) {
        return [game, query] {
            const arcanum::GameSearch::Result result
                = arcanum::GameSearch(query, QTextCodec::codecForName("UTF-8")).run(game, QStringLiteral("Arcanum"));
            benchmark::DoNotOptimize(result.hits.size());
        };
    };
    arcanum::GameSearch::Query text;
    text.pattern = QString::fromLatin1(BenchInputs::SEARCHED_TEXT);
    r.add("find in game: text, 10 000 files", bytes, Goal::Seconds, 2.0, search(text));
    r.cases.back().files = BenchInputs::SEARCH_FILES;
    // A regular expression is matched text by text, so every file is parsed: the slow end.
    arcanum::GameSearch::Query expression = text;
    expression.pattern = QStringLiteral("brass\\s+needle$");
    expression.regex = true;
    r.add("find in game: regex, 10 000 files", bytes, Goal::Seconds, 2.0, search(expression));
    r.cases.back().files = BenchInputs::SEARCH_FILES;
    arcanum::GameSearch::Query flag;
    flag.mode = arcanum::GameSearch::Mode::Flag;
    flag.number = 42;
    r.add("find in game: flag 42, 10 000 files", bytes, Goal::Seconds, 2.0, search(flag));
    r.cases.back().files = BenchInputs::SEARCH_FILES;
}

} // namespace

std::string memcpyName(double bytes)
{
    return "memcpy " + std::to_string(static_cast<long long>(bytes)) + " bytes";
}

// What a file read out of an archive costs: bytes in memory to a model and back, no disk involved,
// through the registry every part of the project shares.
void addRewrites(Registrar& r, const QString& game)
{
    const QList<QPair<QString, QString>> inputs = {
        {QStringLiteral("mes"), BenchInputs::mesPath(game)},
        {QStringLiteral("dlg"), BenchInputs::dlgPath(game)},
        {QStringLiteral("scr"), BenchInputs::scriptPath(game)},
        {QStringLiteral("art"), BenchInputs::artPath(game)},
        {QStringLiteral("pro"), BenchInputs::protoDir(game) + BenchInputs::protoName(0)},
    };
    for (const auto& input : inputs) {
        const arcanum::FileFormat* format = arcanum::FormatRegistry::byName(input.first);
        const QString path = input.second;
        r.addPrepared(input.first.toStdString() + " rewrite in memory", fileSize(path), Goal::None, 0,
                      [format, path]() -> Registrar::Body {
                          const QByteArray bytes = readAll(path);
                          return [format, path, bytes] {
                              QByteArray out;
                              QString error;
                              format->rewrite(path, bytes, QTextCodec::codecForName("Windows-1251"), out, error);
                              benchmark::DoNotOptimize(out.constData());
                          };
                      });
    }
}

std::vector<BenchCase> registerBenchCases(const QString& gameDir, const QString& outDir)
{
    Registrar r;
    addMes(r, gameDir, outDir);
    addDialogue(r, gameDir, outDir);
    addScript(r, gameDir, outDir);
    addArt(r, gameDir, outDir);
    addArtPreview(r, gameDir);
    addArtMaking(r, outDir);
    addProtos(r, gameDir, outDir);
    addMesWidget(r, gameDir);
    addScriptSourceView(r, gameDir);
    addConversationGraph(r);
    addArchives(r, outDir);
    addRewrites(r, gameDir);
    addFind(r, outDir);
    r.addMemcpys();
    return r.cases;
}
