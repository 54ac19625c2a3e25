#ifndef TESTS_SUPPORT_CONTRACT_TEST_H
#define TESTS_SUPPORT_CONTRACT_TEST_H

#include "foreign_host.h"

#include "gdm/gdm_qt.h"

#include <QApplication>
#include <QSignalSpy>
#include <QTest>

#include <cstring>
#include <list>
#include <memory>

/// Base class of the contract tests. Each function starts with a new host, and fails if memory is leaked or freed twice, or
/// on a Qt warning.
class ContractTest : public QObject
{
    Q_OBJECT

public:
    /// A definition that exists until the function ends. Fields that its type does not use have random content.
    DmlAttrDef &definition(int type, const char *name, const char *prompt = "Prompt",
                           const char *group = "Board", unsigned int mask = 0xFFFFFFFF)
    {
        static const char *const colours[] = {"red", "", "deep green"};
        DmlAttrDef &made = *m_definitions.emplace(m_definitions.end());
        std::memset(static_cast<void *>(&made), 0xA5, sizeof made);
        made.type = type;
        qstrncpy(made.name, name, sizeof made.name);
        qstrncpy(made.prompt, prompt, sizeof made.prompt);
        qstrncpy(made.group, group, sizeof made.group);
        made.entityMask = mask;
        if (type == DmlAttrText || type == DmlAttrOption) {
            made.optionList = colours;
            made.optionCount = 3;
        }
        return made;
    }
    DmlAttrDef &text(const char *name, const char *defaultText, int choices = 0)
    {
        DmlAttrDef &made = definition(DmlAttrText, name);
        made.defaultText = defaultText;
        made.textChoiceCount = choices;
        return made;
    }
    DmlAttrDef &option(const char *name, int defaultOption)
    {
        DmlAttrDef &made = definition(DmlAttrOption, name);
        made.defaultOption = defaultOption;
        return made;
    }
    DmlAttrDef &integer(const char *name, int low, int high, int defaultInt)
    {
        DmlAttrDef &made = definition(DmlAttrInteger, name);
        made.defaultInt = defaultInt;
        made.intMin = low;
        made.intMax = high;
        return made;
    }
    DmlAttrDef &real(const char *name, double low, double high, float defaultFloat, int units = 1)
    {
        DmlAttrDef &made = definition(DmlAttrFloat, name);
        made.defaultFloat = defaultFloat;
        made.floatMin = low;
        made.floatMax = high;
        made.unitsClass = units;
        return made;
    }
    /// One definition of each type, and one of an unknown type.
    QList<DmlAttrDef *> eachType()
    {
        QList<DmlAttrDef *> all{&definition(DmlAttrBoolean, "plated"), &text("note", "none", 2)};
        all << &option("colour", 2) << &integer("width", 5, 9, 7) << &real("depth", -1.5, 0.1, 0);
        return all << &definition(9, "odd");
    }

    static QVariant pointer(const void *record) { return QVariant::fromValue(const_cast<void *>(record)); }
    static DmlAttrValue &record(const Zudunmaf::DmlAttrLWI &item)
    {
        return *static_cast<DmlAttrValue *>(item.attrValue().value<void *>());
    }
    static QByteArray bytes(const Zudunmaf::DmlAttrLWI &item) { return bytesOf(record(item)); }
    /// The bytes of the values, in their order.
    template <class... Values>
    static QByteArray bytesOf(const Values &...values)
    {
        return (QByteArray() + ... + QByteArray(reinterpret_cast<const char *>(&values), sizeof values));
    }

protected Q_SLOTS:
    void init()
    {
        host() = ForeignHost();
        m_definitions.clear();
    }
    void cleanup()
    {
        QCOMPARE(host().faults, QStringList());
        QCOMPARE(int(host().memory.size()), 0);
    }

private Q_SLOTS:
    void initTestCase() { s_forward = qInstallMessageHandler(watch); }

private:
    static void watch(QtMsgType type, const QMessageLogContext &context, const QString &text)
    {
        if (type != QtDebugMsg && type != QtInfoMsg)
            host().faults << text;
        s_forward(type, context, text);
    }

    static inline QtMessageHandler s_forward = nullptr;
    std::list<DmlAttrDef> m_definitions;
};

#endif
