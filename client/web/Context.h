#pragma once

#include <QJsonObject>
#include <QMetaType>
#include <QString>
#include <QVariant>

// One call from the page: a copy of the call's JSON object, handed to the operation that the call names.
class Context
{
public:
    Context() = default;
    explicit Context(QJsonObject object);

    // The member's value, or an invalid variant when there is no such member.
    QVariant value(const QString &key) const;
    // The member as an integer: a number is rounded, a text is read as a whole number. 0 when it is missing
    // or nothing that an int can hold.
    int intValue(const QString &key) const;
    // The member as text, a number as its digits; empty when it is missing, or an object or array.
    QString stringValue(const QString &key) const;
    // Name of the page's function that receives the result; empty when the page wants none.
    QString callback() const;
    QJsonObject object() const { return m_object; }

private:
    QJsonObject m_object;
};

Q_DECLARE_METATYPE(Context)
