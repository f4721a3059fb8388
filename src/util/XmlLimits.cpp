#include <KvUICore/util/XmlLimits_p.h>

#include <QStringConverter>
#include <QStringDecoder>

#include <optional>

namespace Kavrel::UICore::Internal {

namespace {

// Scans characters of any width; `T` is char or char16_t.
template <typename T> class TagScanner
{
public:
    TagScanner(const T* begin, const T* end)
        : mpAt(begin)
        , mpEnd(end)
    {}

    bool WithinLimit(int maxAttributes)
    {
        while (SkipTo('<')) {
            ++mpAt;
            if (StartsWith("!--"))
                SkipPast("-->");
            else if (StartsWith("![CDATA["))
                SkipPast("]]>");
            else if (StartsWith("!"))
                SkipDeclaration();
            else if (StartsWith("?"))
                SkipPast("?>");
            else if (StartsWith("/"))
                SkipPast(">");
            else if (CountAttributes() > maxAttributes)
                return false;
        }
        return true;
    }

private:
    bool SkipTo(char c)
    {
        while (mpAt < mpEnd && *mpAt != T(c))
            ++mpAt;
        return mpAt < mpEnd;
    }

    bool StartsWith(const char* text) const
    {
        const T* at = mpAt;
        for (; *text; ++text, ++at) {
            if (at >= mpEnd || *at != T(*text))
                return false;
        }
        return true;
    }

    void SkipPast(const char* text)
    {
        while (mpAt < mpEnd && !StartsWith(text))
            ++mpAt;
        while (*text && mpAt < mpEnd) {
            ++text;
            ++mpAt;
        }
    }

    void SkipQuoted()
    {
        const T quote = *mpAt++;
        while (mpAt < mpEnd && *mpAt != quote)
            ++mpAt;
        if (mpAt < mpEnd)
            ++mpAt;
    }

    // <!DOCTYPE ...> with its internal subset, whose declarations hold
    // quoted strings and comments that may contain any bracket.
    void SkipDeclaration()
    {
        int brackets = 0;
        while (mpAt < mpEnd) {
            if (*mpAt == T('"') || *mpAt == T('\'')) {
                SkipQuoted();
            } else if (StartsWith("<!--")) {
                SkipPast("-->");
            } else if (*mpAt == T('[')) {
                ++brackets;
                ++mpAt;
            } else if (*mpAt == T(']')) {
                --brackets;
                ++mpAt;
            } else if (*mpAt == T('>') && brackets <= 0) {
                ++mpAt;
                return;
            } else {
                ++mpAt;
            }
        }
    }

    // Each attribute has one "=" outside the quoted values.
    int CountAttributes()
    {
        int count = 0;
        while (mpAt < mpEnd && *mpAt != T('>')) {
            if (*mpAt == T('"') || *mpAt == T('\'')) {
                SkipQuoted();
                continue;
            }
            if (*mpAt == T('='))
                ++count;
            ++mpAt;
        }
        return count;
    }

    const T* mpAt;
    const T* const mpEnd;
};

} // namespace

bool AttributesWithinLimit(QStringView text, int maxAttributes)
{
    const auto* begin = reinterpret_cast<const char16_t*>(text.utf16());
    return TagScanner<char16_t>(begin, begin + text.size()).WithinLimit(maxAttributes);
}

bool AttributesWithinLimit(const QByteArray& bytes, int maxAttributes)
{
    // Wide encodings put a zero byte into the first four of an XML document;
    // every encoding an XML parser takes otherwise keeps ASCII as ASCII.
    const QByteArray head = bytes.left(4);
    std::optional<QStringConverter::Encoding> wide = QStringConverter::encodingForData(bytes, u'<');
    if (wide && (*wide == QStringConverter::Utf8 || *wide == QStringConverter::Latin1))
        wide.reset();
    if (!wide && head.contains('\0')) {
        if (head.size() == 4 && head.at(0) == 0 && head.at(1) == 0)
            wide = QStringConverter::Utf32BE;
        else if (head.size() == 4 && head.at(2) == 0 && head.at(3) == 0)
            wide = QStringConverter::Utf32LE;
        else
            wide = head.at(0) == 0 ? QStringConverter::Utf16BE : QStringConverter::Utf16LE;
    }
    if (wide) {
        QStringDecoder decoder(*wide);
        const QString text = decoder.decode(bytes);
        return AttributesWithinLimit(QStringView(text), maxAttributes);
    }
    return TagScanner<char>(bytes.constData(), bytes.constData() + bytes.size()).WithinLimit(maxAttributes);
}

} // namespace Kavrel::UICore::Internal
