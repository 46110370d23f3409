// SPDX-License-Identifier: LGPL-2.1-or-later
#include <Brixel/BXSplitView.h>
#include <Brixel/ZARNChiseledTextField.h>
#include <Brixel/ZARNChiseledTextPopUpButton.h>
#include <Brixel/ZARNNSNibAdditions.h>

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QLabel>
#include <QPointer>
#include <QTest>
#include <QWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Owner { None, Object, Widget };
// The short call, or the one that fills a list (given or null).
enum class Call { Short, WithList, NullList };

QList<QPointer<QWidget>> loadedForms()
{
    QList<QPointer<QWidget>> forms;
    for (QWidget *widget : QApplication::allWidgets()) {
        if (widget->objectName() == u"ProgressForm")
            forms.append(widget);
    }
    return forms;
}

} // namespace

class TestNibAdditions : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void libraryWidgetsInForms()
    {
        QList<QObject *> objects;
        QVERIFY(Brixel::instantiateNibWithOwner(QFINDTESTDATA("libraryform.ui"), nullptr, &objects, false));
        const std::unique_ptr<QObject> form(objects.value(0));
        auto *caption = form->findChild<ZARNChiseledTextField *>(u"caption"_s);
        QVERIFY(caption);
        QCOMPARE(caption->shadowField()->text(), u"Sources"_s);
        // A chiseled pop-up button's title from the form lays the button out as setTitle() does.
        auto *sort = form->findChild<ZARNChiseledTextPopUpButton *>(u"sort"_s);
        QVERIFY(sort);
        QCOMPARE(sort->width(), ZARNChiseledTextPopUpButton(u"Sort by Name"_s).width());
        QCOMPARE(sort->title(), u"Sort by Name"_s);

        // The split view keeps 7 whatever the form says, until told otherwise.
        auto *split = form->findChild<BXSplitView *>(u"split"_s);
        QVERIFY(split);
        static_cast<QWidget *>(form.get())->show();
        QCOMPARE(split->handleWidth(), 7);
        split->setDividerThickness(3.0f);
        QCOMPARE(split->handleWidth(), 3);
    }

    void rememberedObjectsLiveUntilForgotten()
    {
        QObject owner, other;
        auto *parent = new QObject;
        QPointer<QObject> child = new QObject(parent), replaced = new QObject, gone = new QObject, kept = new QObject;
        Brixel::rememberTopLevelObjects({replaced, child}, &owner);
        Brixel::rememberTopLevelObjects({parent, child, gone}, &owner);
        Brixel::rememberTopLevelObjects({kept}, &other);
        QVERIFY(replaced.isNull() && child);
        delete gone.data();
        QCOMPARE(Brixel::rememberedTopLevelObjectsForOwner(&owner), (QList<QObject *>{parent, child}));

        Brixel::forgetTopLevelObjectsForOwner(nullptr); // never remembered anything
        Brixel::forgetTopLevelObjectsForOwner(&owner);
        QVERIFY(child.isNull());
        QVERIFY(Brixel::rememberedTopLevelObjectsForOwner(&owner).isEmpty());
        QCOMPARE(Brixel::rememberedTopLevelObjectsForOwner(&other), QList<QObject *>{kept});
        Brixel::forgetTopLevelObjectsForOwner(&other);
        QVERIFY(kept.isNull());
    }

    void instantiate_data()
    {
        QTest::addColumn<Owner>("ownerKind");
        QTest::addColumn<bool>("fromDevice");
        QTest::addColumn<Call>("call");
        QTest::addColumn<bool>("remember");
        QTest::addColumn<bool>("remembered");

        QTest::newRow("remembered, with list") << Owner::Widget << false << Call::WithList << true << true;
        QTest::newRow("remembered, short form") << Owner::Object << true << Call::Short << true << true;
        QTest::newRow("remembered for no owner") << Owner::None << false << Call::Short << true << true;
        QTest::newRow("remembering needs a list; widget parent") << Owner::Widget << true << Call::NullList << true
                                                                 << false;
        QTest::newRow("object owner deletes the form") << Owner::Object << true << Call::WithList << false << false;
        QTest::newRow("caller owns without an owner") << Owner::None << true << Call::WithList << false << false;
        QTest::newRow("deleted without any taker") << Owner::None << false << Call::Short << false << false;
    }

    void instantiate()
    {
        QFETCH(Owner, ownerKind);
        QFETCH(bool, fromDevice);
        QFETCH(Call, call);
        QFETCH(bool, remember);
        QFETCH(bool, remembered);

        std::unique_ptr<QObject> owner = ownerKind == Owner::Widget ? std::make_unique<QWidget>()
                                       : ownerKind == Owner::Object ? std::make_unique<QObject>()
                                                                    : nullptr;
        const QObject *ownerKey = owner.get();
        const QString path = QFINDTESTDATA("progressform.ui");
        QFile file(path);
        QVERIFY(file.open(QIODevice::ReadOnly));
        QList<QObject *> objects;
        QList<QObject *> *list = call == Call::WithList ? &objects : nullptr;
        const bool loaded = call == Call::Short
            ? (fromDevice ? Brixel::instantiateNibWithOwner(&file, owner.get(), remember)
                          : Brixel::instantiateNibWithOwner(path, owner.get(), remember))
            : (fromDevice ? Brixel::instantiateNibWithOwner(&file, owner.get(), list, remember)
                          : Brixel::instantiateNibWithOwner(path, owner.get(), list, remember));
        QVERIFY(loaded);

        const QList<QPointer<QWidget>> forms = loadedForms();
        if (ownerKind == Owner::None && !remembered && !list) {
            QVERIFY(forms.isEmpty());
            return;
        }
        QCOMPARE(forms.size(), 1);
        const QPointer<QWidget> form = forms.first();
        QCOMPARE(form->findChild<QLabel *>(u"messageLabel"_s)->text(), u"Copying files"_s);
        if (list)
            QCOMPARE(objects, QList<QObject *>{form});
        QCOMPARE(Brixel::rememberedTopLevelObjectsForOwner(ownerKey),
                 remembered ? QList<QObject *>{form} : QList<QObject *>());
        QVERIFY(form->isWindow());
        QCOMPARE(form->parent(), remembered ? nullptr : qobject_cast<QWidget *>(owner.get()));

        owner.reset();
        if (remembered) {
            QVERIFY(form);
            Brixel::forgetTopLevelObjectsForOwner(ownerKey);
        } else if (ownerKind == Owner::None) {
            delete form.data();
        }
        QVERIFY(form.isNull());
    }

    void failedLoadCreatesNothing_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("malformed") << "<ui version=\"4.0\"><widget class=\"QWidget\""_ba;
        QTest::newRow("no widget") << "<ui version=\"4.0\"><class>Empty</class></ui>"_ba;
    }

    void failedLoadCreatesNothing()
    {
        QFETCH(QByteArray, content);
        QObject owner;
        QBuffer buffer(&content);
        QVERIFY(buffer.open(QIODevice::ReadOnly));
        QList<QObject *> objects{&owner};
        QVERIFY(!Brixel::instantiateNibWithOwner(&buffer, &owner, &objects, true));
        QVERIFY(!Brixel::instantiateNibWithOwner(u"/nonexistent/form.ui"_s, &owner, &objects, true));
        QVERIFY(!Brixel::instantiateNibWithOwner(static_cast<QIODevice *>(nullptr), &owner, true));
        QCOMPARE(objects, QList<QObject *>{&owner});
        QVERIFY(Brixel::rememberedTopLevelObjectsForOwner(&owner).isEmpty());
        QVERIFY(loadedForms().isEmpty());
    }
};

QTEST_MAIN(TestNibAdditions)
#include "tst_nibadditions.moc"
