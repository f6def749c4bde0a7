// SPDX-FileCopyrightText: VornFrame contributors
// SPDX-License-Identifier: MIT

#pragma once

class QMetaProperty;
class QString;
class QVariant;

/// Values of properties as a line of text.
namespace PropertyText {

/// The value of \a property: enumerations by the names of their values.
QString text(const QMetaProperty &property, const QVariant &value);

/// \a value as a line of text that says the same in every run: no addresses, no line ends.
QString text(const QVariant &value);

} // namespace PropertyText
