// Every format's save, made to fail: the file that was there before stays byte for byte and no
// temporary file is left beside it.
#include "Artfile.h"
#include "PaletteFile.h"
#include "DialogueFile.h"
#include "DialogueFileNew.h"
#include "FormatChecks.h"
#include "Mesfile.h"
#include "Proto.h"
#include "Script.h"

#include <QDir>
#include <QTemporaryDir>
#include <QTextCodec>
#include <QtTest>

#include <csignal>
#include <functional>
#include <memory>

#include <sys/resource.h>

namespace {

using Saver = std::function<bool(const QString& path)>;

QString sample(const char* relative)
{
    return QStringLiteral(LOREKA_SOURCE_DIR "/examples/sample-game/data/") + QLatin1String(relative);
}

std::string native(const QString& path)
{
    return QFile::encodeName(path).toStdString();
}

template <typename Model>
Saver tableSaver(const char* file)
{
    auto model = std::make_shared<Model>();
    QTextCodec* codec = QTextCodec::codecForName("Windows-1251");
    if (!model->loadFile(sample(file), codec))
        return nullptr;
    return [model, codec](const QString& path) { return model->save(path, codec); };
}

// Each saver holds a model loaded from the sample game, ready to be written anywhere.
Saver saverFor(const QString& kind)
{
    if (kind == QLatin1String("mes"))
        return tableSaver<arcanum::Mesfile>("mes/sample_items.mes");
    if (kind == QLatin1String("dlg table"))
        return tableSaver<arcanum::DialogueFile>("dlg/sample_table.dlg");
    if (kind == QLatin1String("dlg editor")) {
        const QFile source(sample("dlg/sample_dialogue.dlg"));
        auto model = std::make_shared<arcanum::DialogueFileNew>(&source);
        if (!model->load())
            return nullptr;
        return [model](const QString& path) {
            QFile file(path);
            return model->save(&file);
        };
    }
    if (kind == QLatin1String("scr")) {
        auto model = std::make_shared<arcanum::Script>();
        if (!model->load(sample("scr/00001gate_guard.scr")))
            return nullptr;
        return [model](const QString& path) { return model->save(path); };
    }
    if (kind == QLatin1String("art")) {
        auto model = std::make_shared<arcanum::Artfile>();
        model->load(native(sample("art/sample_beetle.art")));
        if (!model->isLoaded())
            return nullptr;
        return [model](const QString& path) { return model->save(path); };
    }
    if (kind == QLatin1String("aap")) {
        struct Colours
        {
            arcanum::Artfile::Palette palette;
        };
        auto colours = std::make_shared<Colours>();
        QString error;
        if (!arcanum::PaletteFile::read(sample("art/sample_frost.aap"), colours->palette, error))
            return nullptr;
        return [colours](const QString& path) {
            QString reason;
            return arcanum::PaletteFile::write(path, colours->palette, reason);
        };
    }
    if (kind == QLatin1String("pro")) {
        auto model = std::make_shared<arcanum::Proto>();
        model->load(native(sample("proto/weapon_sword.pro")));
        if (!model->isLoaded())
            return nullptr;
        return [model](const QString& path) { return model->save(native(path)); };
    }
    return nullptr;
}

QStringList everything(const QString& dir)
{
    return QDir(dir).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot, QDir::Name);
}

// A file size limit makes the write fail part-way, as a full disk does; the signal that announces it
// would end the test instead.
class FileSizeLimit
{
public:
    explicit FileSizeLimit(rlim_t bytes)
    {
        getrlimit(RLIMIT_FSIZE, &saved);
        previousHandler = std::signal(SIGXFSZ, SIG_IGN);
        rlimit limited = saved;
        limited.rlim_cur = bytes;
        setrlimit(RLIMIT_FSIZE, &limited);
    }
    ~FileSizeLimit()
    {
        setrlimit(RLIMIT_FSIZE, &saved);
        std::signal(SIGXFSZ, previousHandler);
    }
    FileSizeLimit(const FileSizeLimit&) = delete;
    FileSizeLimit& operator=(const FileSizeLimit&) = delete;

private:
    rlimit saved{};
    void (*previousHandler)(int) = SIG_DFL;
};

const QByteArray PREVIOUS = QByteArrayLiteral("previous\r\ncontent");
const char* const KINDS[] = {"mes", "dlg table", "dlg editor", "scr", "art", "aap", "pro"};

} // namespace

class SafeSaveTest : public QObject
{
    Q_OBJECT

private slots:
    void failedSaveKeepsPreviousFile_data();
    void failedSaveKeepsPreviousFile();
    void savesStillWork_data();
    void savesStillWork();

private:
    static void addKinds();
};

void SafeSaveTest::addKinds()
{
    QTest::addColumn<QString>("kind");
    for (const char* kind : KINDS)
        QTest::newRow(kind) << QString::fromLatin1(kind);
}

void SafeSaveTest::failedSaveKeepsPreviousFile_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<QString>("failure");
    for (const char* kind : KINDS) {
        for (const char* failure : {"target is a directory", "parent is a file", "disk full"})
            QTest::addRow("%s, %s", kind, failure) << QString::fromLatin1(kind) << QString::fromLatin1(failure);
    }
}

// Three ways a save cannot succeed, all of them open to root (which ignores permission bits): the
// target is a directory; the target's parent is a regular file, so nothing can be created beside
// it; or the disk fills while the new bytes are written, simulated by a file size limit.
void SafeSaveTest::failedSaveKeepsPreviousFile()
{
    QFETCH(QString, kind);
    QFETCH(QString, failure);
    const Saver save = saverFor(kind);
    QVERIFY(save);
    QTemporaryDir dir;
    QVERIFY(dir.isValid());

    QString target = dir.filePath(QStringLiteral("target"));
    QString kept = target; // the file whose bytes must survive
    if (failure == QLatin1String("target is a directory")) {
        QVERIFY(QDir(dir.path()).mkdir(QStringLiteral("target")));
        kept = dir.filePath(QStringLiteral("target/inside.txt"));
    } else if (failure == QLatin1String("parent is a file")) {
        target = dir.filePath(QStringLiteral("target/file"));
    }
    QVERIFY(FormatChecks::writeFile(kept, PREVIOUS));
    const QStringList before = everything(dir.path());

    bool saved = true;
    if (failure == QLatin1String("disk full")) {
        const FileSizeLimit limit(rlim_t(PREVIOUS.size()) / 2);
        saved = save(target);
    } else {
        saved = save(target);
    }
    QVERIFY(!saved);
    QCOMPARE(FormatChecks::readFile(kept), PREVIOUS);
    QCOMPARE(everything(dir.path()), before);
    if (failure == QLatin1String("target is a directory"))
        QCOMPARE(everything(target), QStringList{QStringLiteral("inside.txt")});
}

void SafeSaveTest::savesStillWork_data()
{
    addKinds();
}

// The same savers replace an existing file when nothing stands in the way, so the failures above
// are the cases' own doing.
void SafeSaveTest::savesStillWork()
{
    QFETCH(QString, kind);
    const Saver save = saverFor(kind);
    QVERIFY(save);
    QTemporaryDir dir;
    const QString target = dir.filePath(QStringLiteral("target"));
    QVERIFY(FormatChecks::writeFile(target, PREVIOUS));
    QVERIFY(save(target));
    const QByteArray written = FormatChecks::readFile(target);
    QVERIFY(written.size() > PREVIOUS.size());
    QCOMPARE(everything(dir.path()), QStringList{QStringLiteral("target")});
}

QTEST_MAIN(SafeSaveTest)
#include "tst_safesave.moc"
