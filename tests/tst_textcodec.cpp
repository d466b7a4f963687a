// The fast Windows-1251 path of TextCodec must give exactly what the codec gives for the whole text.
#include "TextCodec.h"

#include "support/FormatChecks.h"

#include <QTest>
#include <QTextCodec>

using arcanum::TextCodec;

class TstTextCodec : public QObject
{
    Q_OBJECT

private:
    static QTextCodec* cp1251() { return QTextCodec::codecForName("Windows-1251"); }

private slots:
    void encodeMatchesCodec_data()
    {
        QTest::addColumn<QString>("text");
        QTest::newRow("empty") << QString();
        QTest::newRow("ascii") << QStringLiteral("{1}{Hello}\r\n\t{2}{}\n");
        QTest::newRow("cyrillic") << QString::fromUtf8("{1}{Добро пожаловать, путник!}\r\n");
        QTest::newRow("unmappable") << QString::fromUtf8("a中b€c\u00A0d");
        QTest::newRow("nul") << QString(QStringLiteral("a\0b").data(), 3);
        QTest::newRow("surrogate pair") << QString::fromUtf8("x\U0001F600y");
        QTest::newRow("lone high surrogate") << (QStringLiteral("x") + QChar(0xD83D) + QStringLiteral("y"));
        QTest::newRow("lone low surrogate") << (QStringLiteral("x") + QChar(0xDE00) + QStringLiteral("y"));
        QTest::newRow("two high surrogates") << (QStringLiteral("x") + QChar(0xD83D) + QChar(0xD83D) + QStringLiteral("y"));
        QTest::newRow("high surrogate, cyrillic") << (QStringLiteral("x") + QChar(0xD83D) + QChar(0x0416) + QStringLiteral("y"));
        QTest::newRow("high surrogate at end") << (QStringLiteral("x") + QChar(0xD83D));
        QString every;
        for (char16_t c = 1; c < 0x500; ++c)
            every += QChar(c);
        QTest::newRow("first code points") << every;
    }

    void encodeMatchesCodec()
    {
        QFETCH(QString, text);
        QCOMPARE(TextCodec::encode(cp1251(), text), cp1251()->fromUnicode(text));
    }

    void decodeMatchesCodec_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QByteArray every;
        for (int b = 0; b < 256; ++b)
            every.append(char(b));
        QTest::newRow("every byte") << every;
        QTest::newRow("random") << FormatChecks::randomBytes(4096, 7);
        QTest::newRow("empty") << QByteArray();
    }

    void decodeMatchesCodec()
    {
        QFETCH(QByteArray, bytes);
        QCOMPARE(TextCodec::decode(cp1251(), bytes), cp1251()->toUnicode(bytes));
    }

    void otherCodecsConvertWhole()
    {
        QTextCodec* utf8 = QTextCodec::codecForName("UTF-8");
        const QString text = QString::fromUtf8("\xEF\xBB\xBF{1}{Grüße}");
        QCOMPARE(TextCodec::encode(utf8, text), utf8->fromUnicode(text));
        QCOMPARE(TextCodec::decode(utf8, text.toUtf8()), utf8->toUnicode(text.toUtf8()));
    }
};

QTEST_GUILESS_MAIN(TstTextCodec)
#include "tst_textcodec.moc"
