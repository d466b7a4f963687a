#include "EncodingChecks.h"

#include "Document.h"
#include "EncodingBox.h"
#include "EncodingStrip.h"
#include "FormatChecks.h"
#include "Page.h"
#include "ScriptedAnswerer.h"

#include <QLabel>
#include <QPushButton>
#include <QtTest>

namespace EncodingChecks {

void suggestionReadsTheFile(const std::function<std::unique_ptr<Page>()>& makePage, const QString& path,
                            const QByteArray& bytes, const QByteArray& wanted)
{
    QVERIFY(FormatChecks::writeFile(path, bytes));
    std::unique_ptr<Page> page = makePage();
    auto* strip = page->findChild<EncodingStrip*>(QStringLiteral("encodingStrip"));
    auto* box = page->findChild<EncodingBox*>(QStringLiteral("encodingSelect"));
    QVERIFY(strip && box);
    QVERIFY(strip->isHidden());
    const QString byDefault = box->currentText();
    QVERIFY(page->openFile(path));
    QVERIFY(!strip->isHidden());
    const QString message = strip->findChild<QLabel*>()->text();
    QVERIFY2(message.startsWith(QStringLiteral("The file does not read cleanly in %1: ").arg(byDefault)),
             qPrintable(message));
    QVERIFY2(message.contains(QStringLiteral("the first on line 1")), qPrintable(message));
    const QList<QPushButton*> suggestions = strip->findChildren<QPushButton*>(QStringLiteral("encodingSuggestion"));
    QVERIFY(!suggestions.isEmpty());
    QCOMPARE(suggestions.first()->text().toLatin1(), wanted);

    QTest::mouseClick(suggestions.first(), Qt::LeftButton);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(box->currentText().toLatin1(), wanted);
    QVERIFY(strip->isHidden());
    QVERIFY(!page->document()->isModified());

    page = makePage();
    box = page->findChild<EncodingBox*>(QStringLiteral("encodingSelect"));
    QCOMPARE(box->currentText(), byDefault);
    QVERIFY(page->openFile(path));
    QCOMPARE(box->currentText().toLatin1(), wanted);
    QVERIFY(page->findChild<EncodingStrip*>(QStringLiteral("encodingStrip"))->isHidden());
    ScriptedAnswerer answers;
    answers.buttons << QMessageBox::Yes;
    QVERIFY(page->save());
    QCOMPARE(FormatChecks::readFile(path), bytes);
}

} // namespace EncodingChecks
