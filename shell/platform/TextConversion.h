// Texts from the core to the toolkit and back. Both count in UTF-16 units, and not one unit is
// changed on the way: lone surrogates, zeros and byte order marks pass.
#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace keyfluent::shell
{

QString ToQString(std::u16string_view text);
std::u16string FromQString(const QString& text);

// For labels and messages, which break a line at LF only: every CR LF and every single CR becomes
// one LF. Positions in the result are not those of the text.
QString LabelText(std::u16string_view text);

} // namespace keyfluent::shell
