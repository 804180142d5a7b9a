#pragma once

#include <QtCore/QString>

#include "settings/Phrase.h"

namespace wayloom {

/// The text for a key of the one string table; the key itself when the table has no entry. Layouts
/// reach the same table with qsTranslate("Wayloom", key).
QString localizedText(const char* key);
/// A phrase in the user's language, as one line.
QString localizedText(const Phrase& phrase);

}  // namespace wayloom
