// SPDX-License-Identifier: LGPL-3.0-or-later
#pragma once

#include "base/record_p.h"
#include "settings/converting_p.h"

#include <QtCore/QHash>
#include <QtCore/QString>

#include <cstddef>
#include <functional>
#include <string>
#include <type_traits>
#include <utility>

namespace quv {

// How a setting travels: as what type, and what becomes of what was given. A value that is not taken leaves the setting alone.

/** As the field itself. */
template <class V>
struct AsItIs
{
    using Outside = V;
    static bool take(V &&given, V &field)
    {
        field = std::move(given);
        return true;
    }
    static const V &give(const V &field) { return field; }
};

/** An enumeration of which any number is taken. */
template <class V>
struct AsNumber
{
    using Outside = int;
    static bool take(int given, V &field)
    {
        field = static_cast<V>(given);
        return true;
    }
    static int give(V field) { return static_cast<int>(field); }
};

template <class V, class Form>
Decoded readSetting(const XmlRpc::XmlRpcValue &value, void *field)
{
    typename Form::Outside given{};
    const Decoded decoded = fieldType<typename Form::Outside>().read(value, &given);
    return decoded == Decoded::Good && Form::take(std::move(given), *static_cast<V *>(field))
               ? Decoded::Good
               : Decoded::OtherType;
}

template <class V, class Form>
bool readSettingVariant(const QVariant &variant, void *field)
{
    typename Form::Outside given{};
    return convertSetting(variant, given) && Form::take(std::move(given), *static_cast<V *>(field));
}

template <class V, class Form>
void writeSetting(const void *field, XmlRpc::XmlRpcValue &value)
{
    const typename Form::Outside given = Form::give(*static_cast<const V *>(field));
    fieldType<typename Form::Outside>().write(&given, value);
}

template <class V, class Form>
const FieldType &settingType()
{
    static const FieldType type = {fieldType<typename Form::Outside>().name,
                                   FieldType::Other,
                                   readSetting<V, Form>,
                                   readSettingVariant<V, Form>,
                                   writeSetting<V, Form>,
                                   equalFields<V>,
                                   resetField<V>};
    return type;
}

/**
 * One line of the table of a T's settings: where it lies, what it is at first, and the section and the key under which it travels,
 * if it does. What it is at first is a value, or what a function makes, of the Origin when it takes one.
 */
template <class T, class Origin>
class Setting
{
public:
    template <class V, class First>
    Setting(V T::*field, First first)
        : m_isMadeByFunction(isFunction<First>),
          m_setDefault(defaultOf(field, first)),
          m_isUnset([=](const T &settings) { return isUnsetField(settings.*field); }),
          m_isSame([=](const T &left, const T &right) { return left.*field == right.*field; })
    {}

    template <class V, class First, class Form = AsItIs<V>>
    Setting(V T::*field, First first, const char *section, const char *key, Form = {}) : Setting(field, first)
    {
        travel<V, Form>(section, key, offsetOf(field));
    }

    /** A setting of a \a part that has a table of its own, with its default in there. */
    template <class P, class V, class Form = AsItIs<V>>
    static Setting ofPart(P T::*part, V P::*field, const char *section, const char *key, Form = {})
    {
        Setting setting;
        setting.travel<V, Form>(section, key, offsetOf(part) + offsetOf(field));
        return setting;
    }

    bool isMadeByFunction() const { return m_isMadeByFunction; } ///< its default
    void setDefault(T &settings, const Origin &origin) const
    {
        if (m_setDefault)
            m_setDefault(settings, origin);
    }
    /** As long as nothing was stored in the field of a fresh T. */
    bool isUnset(const T &settings) const { return m_isUnset && m_isUnset(settings); }
    bool isSame(const T &left, const T &right) const { return !m_isSame || m_isSame(left, right); }

    bool travels() const { return m_type != nullptr; }
    bool isIn(const char *section) const { return m_section == section; }
    /** The value of the hash, when it has one. */
    void take(const QHash<QString, QVariant> &values, T &settings) const
    {
        const auto value = values.constFind(m_hashKey);
        if (travels() && value != values.constEnd())
            m_type->readVariant(*value, reinterpret_cast<char *>(&settings) + m_offset);
    }
    /** As a member of a struct: of the whole one, or of one for its section. Its key lasts as long as this object. */
    MemberRow member() const { return memberOf(m_key); }
    MemberRow flatMember() const { return memberOf(m_flatKey); }

private:
    Setting() = default;

    template <class First>
    static constexpr bool isFunction =
        std::is_invocable_v<First> || std::is_invocable_v<First, const Origin &>;

    static bool isUnsetField(const QString &text) { return text.isNull(); } // an empty one was given
    template <class V>
    static bool isUnsetField(const V &value)
    {
        return value == V();
    }

    template <class V, class First>
    static auto defaultOf(V T::*field, First first)
    {
        if constexpr (std::is_invocable_v<First, const Origin &>)
            return [=](T &settings, const Origin &origin) { settings.*field = first(origin); };
        else if constexpr (std::is_invocable_v<First>)
            return [=](T &settings, const Origin &) { settings.*field = first(); };
        else
            return [field, value = V(first)](T &settings, const Origin &) { settings.*field = value; };
    }

    template <class V, class Form>
    void travel(const std::string &section, const std::string &key, std::ptrdiff_t offset)
    {
        m_section = section;
        m_key = key;
        m_flatKey = section.empty() ? key : section + '_' + key;
        m_hashKey = QString::fromStdString(m_flatKey);
        m_type = &settingType<V, Form>();
        m_offset = offset;
    }

    MemberRow memberOf(const std::string &key) const
    {
        MemberRow row;
        row.key = key.c_str();
        row.type = m_type;
        row.offset = m_offset;
        return row;
    }

    bool m_isMadeByFunction = false;
    std::function<void(T &, const Origin &)> m_setDefault;
    std::function<bool(const T &)> m_isUnset;
    std::function<bool(const T &, const T &)> m_isSame;
    std::string m_section;
    std::string m_key;
    std::string m_flatKey;
    QString m_hashKey;                 ///< the same
    const FieldType *m_type = nullptr; ///< null for what does not travel
    std::ptrdiff_t m_offset = 0;
};

} // namespace quv
