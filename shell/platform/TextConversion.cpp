#include "shell/platform/TextConversion.h"

namespace keyfluent::shell
{

// Meant: not QString::fromUtf16, which takes a byte order mark at the front away.
QString ToQString(std::u16string_view text)
{
    return QString(reinterpret_cast<const QChar*>(text.data()),
                   static_cast<qsizetype>(text.size()));
}

std::u16string FromQString(const QString& text)
{
    return text.toStdU16String();
}

QString LabelText(std::u16string_view text)
{
    QString label = ToQString(text);
    label.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
    label.replace(u'\r', u'\n');
    return label;
}

} // namespace keyfluent::shell
