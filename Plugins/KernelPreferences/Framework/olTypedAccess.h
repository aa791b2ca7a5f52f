#pragma once

#include "Utilities/olMessage.h"

#include <boost/any.hpp>

#include <algorithm>
#include <cstring>
#include <string>
#include <typeinfo>
#include <vector>

#include <OpenSG/OSGColor.h>

/// Tells on the standard error stream that a key holds another type than its reader needs, with the call stack.
void reportWrongType(const std::string &key, const std::type_info &held, const std::type_info &required);

/// The readers' notion of a type: its name as text, so that a value made in another library is recognised.
inline bool isSameType(const std::type_info &held, const std::type_info &required)
{
    return held.name() == required.name() || std::strcmp(held.name(), required.name()) == 0;
}

/// Exact equality. Colours compare channel by channel: their own operator has a tolerance and would hide small changes.
template <class T> bool isSameValue(const T &left, const T &right) { return left == right; }
inline bool isSameValue(const osg::Color3f &left, const osg::Color3f &right)
{
    return left.red() == right.red() && left.green() == right.green() && left.blue() == right.blue();
}
inline bool isSameValue(const std::vector<osg::Color3f> &left, const std::vector<osg::Color3f> &right)
{
    return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                      [](const osg::Color3f &a, const osg::Color3f &b) { return isSameValue(a, b); });
}

/// The held value as one of type T; null where it is of another, and for an empty one. Told by the type itself first,
/// which is as good as free; types whose names alone are the same fail in the cast.
template <class T> const T *heldAs(const boost::any &held)
{
    if (const T *value = boost::any_cast<T>(&held))
        return value;
    return !held.empty() && isSameType(held.type(), typeid(T)) ? &boost::any_cast<const T &>(held) : nullptr;
}

/// Copies the key's value into `out`. False with `out` untouched where the key is absent, which is silent, or holds
/// another type, which is reported.
template <class T> bool getFromMessage(olMessage &record, const std::string &key, T &out)
{
    const boost::any &held = record.get(key);
    if (const T *value = heldAs<T>(held)) {
        out = *value;
        return true;
    }
    if (!held.empty())
        reportWrongType(key, held.type(), typeid(T));
    return false;
}

/// Stores the value where the key is absent or holds something else, another type included, and says whether the
/// record changed. With `compare` false a present key is left alone.
template <class T> bool setIfChanged(olMessage &record, const std::string &key, const T &value, bool compare)
{
    const boost::any &held = record.get(key);
    if (!compare && !held.empty())
        return false;
    const T *before = heldAs<T>(held);
    if (before && isSameValue(*before, value))
        return false;
    record.set(key, boost::any(value), true);
    return true;
}
