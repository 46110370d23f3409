// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/ZARNApplication.h>
#include <Brixel/ZARNClock.h>

#include <QLineEdit>
#include <QShortcut>
#include <QSignalSpy>
#include <QTest>
#include <QTimer>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace {

class FixedClock : public ZARNClock
{
public:
    double now() const override { return 1715783420.5; }
};

class RecordingAttention : public ZARNUserAttention
{
public:
    int request(RequestType type) override
    {
        requests.append(type);
        return 41 + int(requests.size());
    }
    void cancel(int identifier) override { cancelled.append(identifier); }
    QList<RequestType> requests;
    QList<int> cancelled;
};

// Remembers how many notices had been sent when a mouse press or key press reached it.
class Target : public QWidget
{
public:
    explicit Target(const QSignalSpy &mouseDowns, const QSignalSpy &inputs)
        : m_mouseDowns(mouseDowns)
        , m_inputs(inputs)
    {
        setFocusPolicy(Qt::StrongFocus);
    }
    QList<qsizetype> seenAtPress;

protected:
    void mousePressEvent(QMouseEvent *) override { seenAtPress = {m_mouseDowns.size(), m_inputs.size()}; }

private:
    const QSignalSpy &m_mouseDowns;
    const QSignalSpy &m_inputs;
};

using Input = std::function<void(QWindow *)>;

} // namespace

Q_DECLARE_METATYPE(Input)

class TestApplication : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void notices_data()
    {
        QTest::addColumn<Input>("input");
        QTest::addColumn<int>("mouseDowns");
        QTest::addColumn<int>("inputs");

        const QPoint at(10, 10);
        QTest::newRow("middle click") << Input([=](QWindow *w) { QTest::mouseClick(w, Qt::MiddleButton, {}, at); }) << 0
                                      << 2;
        QTest::newRow("left drag") << Input([=](QWindow *w) {
            QTest::mousePress(w, Qt::LeftButton, {}, at);
            QTest::mouseMove(w, at + QPoint(5, 5));
            QTest::mouseRelease(w, Qt::LeftButton, {}, at + QPoint(5, 5));
        }) << 1 << 3;
        QTest::newRow("key press") << Input([](QWindow *w) { QTest::keyPress(w, Qt::Key_A); }) << 0 << 1;
        QTest::newRow("key press taken by a shortcut") << Input([](QWindow *w) {
            w->requestActivate();
            QVERIFY(QTest::qWaitForWindowActive(w));
            new QShortcut(Qt::Key_B, QApplication::activeWindow());
            QTest::keyPress(w, Qt::Key_B);
        }) << 0 << 1;
        QTest::newRow("key release") << Input([](QWindow *w) { QTest::keyRelease(w, Qt::Key_A); }) << 0 << 0;
    }

    void notices()
    {
        QFETCH(Input, input);
        QFETCH(int, mouseDowns);
        QFETCH(int, inputs);
        auto *application = static_cast<ZARNApplication *>(qApp);
        QSignalSpy mouseDownSpy(application, &ZARNApplication::mouseDown);
        QSignalSpy inputSpy(application, &ZARNApplication::userInput);
        Target target(mouseDownSpy, inputSpy);
        target.resize(100, 100);
        target.show();
        QVERIFY(QTest::qWaitForWindowExposed(&target));
        target.setFocus();
        mouseDownSpy.clear();
        inputSpy.clear();
        ZARNClock::setCurrent(std::make_unique<FixedClock>());

        input(target.windowHandle());
        ZARNClock::setCurrent(nullptr);
        QCOMPARE(mouseDownSpy.size(), mouseDowns);
        QCOMPARE(inputSpy.size(), inputs);
        // Every event from the window system is timed, whatever its kind; the notices come before
        // the widget sees the press.
        QCOMPARE(application->lastEventTimestamp(), 1715783420.5);
        if (!target.seenAtPress.isEmpty())
            QCOMPARE(target.seenAtPress, (QList<qsizetype>{mouseDowns, 1}));
    }

    void terminateCommitsAndQuits()
    {
        QWidget window;
        auto *editor = new QLineEdit(&window);
        new QVBoxLayout(&window);
        window.layout()->addWidget(editor);
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        editor->setFocus();
        QTest::keyClicks(editor, u"draft"_s);
        QSignalSpy committed(editor, &QLineEdit::editingFinished);

        auto *application = static_cast<ZARNApplication *>(qApp);
        QTimer::singleShot(0, application, &ZARNApplication::terminate);
        QTimer::singleShot(5000, application, [] { QCoreApplication::exit(1); });
        QCOMPARE(application->exec(), 0);
        QCOMPARE(committed.size(), 1);
        QVERIFY(!editor->hasFocus());
    }

    void attention_data()
    {
        QTest::addColumn<bool>("shortCircuit");
        QTest::addColumn<ZARNUserAttention::RequestType>("type");
        QTest::addColumn<int>("result");
        QTest::addColumn<int>("requests");
        QTest::addColumn<QList<int>>("cancelled");

        using Type = ZARNUserAttention::RequestType;
        QTest::newRow("critical") << false << Type::Critical << 42 << 1 << QList<int>{};
        QTest::newRow("short: critical is not made") << true << Type::Critical << 0 << 0 << QList<int>{};
        QTest::newRow("short: informational is cancelled at once") << true << Type::Informational << 42 << 1
                                                                    << QList<int>{42};
    }

    void attention()
    {
        QFETCH(bool, shortCircuit);
        QFETCH(ZARNUserAttention::RequestType, type);
        QFETCH(int, result);
        QFETCH(int, requests);
        QFETCH(QList<int>, cancelled);
        auto recorder = std::make_unique<RecordingAttention>();
        const RecordingAttention &recorded = *recorder;
        ZARNUserAttention::setCurrent(std::move(recorder));
        auto *application = static_cast<ZARNApplication *>(qApp);
        application->setShortCircuitRequestUserAttention(shortCircuit);

        QCOMPARE(application->requestUserAttention(type), result);
        QCOMPARE(recorded.requests.size(), requests);
        QCOMPARE(recorded.cancelled, cancelled);
        ZARNUserAttention::setCurrent(nullptr);
        // The window system's own requests hand out increasing identifiers.
        const int first = ZARNUserAttention::system().request(type);
        QCOMPARE(ZARNUserAttention::system().request(type), first + 1);
    }
};

int main(int argc, char *argv[])
{
    ZARNApplication application(argc, argv);
    // Nothing has come from the window system yet.
    if (application.lastEventTimestamp() != 0.0)
        return 1;
    TestApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_application.moc"
