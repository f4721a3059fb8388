#include <KvUICore/util/XmlLimits_p.h>

#include <QStringConverter>
#include <QStringDecoder>

#include <optional>

namespace Kavrel::UICore::Internal {

namespace {

// Scans markup of any character width; `T` is char or char16_t.
template <typename T> class MarkupScanner
{
public:
    MarkupScanner(const T* begin, const T* end, const XmlLimits& limits)
        : mpAt(begin)
        , mpEnd(end)
        , mLimits(limits)
    {}

    QString LimitReached()
    {
        int depth = 0;
        qint64 nodes = 0;
        while (mpAt < mpEnd) {
            if (*mpAt != T('<')) {
                // A run of text up to the next markup.
                ++nodes;
                while (mpAt < mpEnd && *mpAt != T('<'))
                    ++mpAt;
                continue;
            }
            ++mpAt;
            ++nodes;
            if (StartsWith("!--")) {
                SkipPast("-->");
            } else if (StartsWith("![CDATA[")) {
                SkipPast("]]>");
            } else if (StartsWith("!")) {
                SkipDeclaration();
            } else if (StartsWith("?")) {
                SkipPast("?>");
            } else if (StartsWith("/")) {
                --nodes;
                --depth;
                SkipPast(">");
            } else {
                bool empty = false;
                const int attributes = ScanStartTag(&empty);
                if (attributes > mLimits.miMaxAttributes)
                    return QStringLiteral("an element has more than %1 attributes").arg(mLimits.miMaxAttributes);
                nodes += attributes;
                if (!empty && ++depth > mLimits.miMaxDepth)
                    return QStringLiteral("elements nest deeper than %1 levels").arg(mLimits.miMaxDepth);
            }
            if (nodes > mLimits.miMaxNodes)
                return QStringLiteral("the document has more than %1 nodes").arg(mLimits.miMaxNodes);
        }
        return QString();
    }

private:
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
        for (; *text && mpAt < mpEnd; ++text)
            ++mpAt;
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
            } else if (*mpAt == T('>') && brackets <= 0) {
                ++mpAt;
                return;
            } else {
                brackets += *mpAt == T('[') ? 1 : *mpAt == T(']') ? -1 : 0;
                ++mpAt;
            }
        }
    }

    // The attributes of a start tag: one "=" each outside the quoted values.
    int ScanStartTag(bool* empty)
    {
        int count = 0;
        T previous = T(0);
        while (mpAt < mpEnd && *mpAt != T('>')) {
            if (*mpAt == T('"') || *mpAt == T('\'')) {
                SkipQuoted();
                previous = T(0);
                continue;
            }
            if (*mpAt == T('='))
                ++count;
            previous = *mpAt++;
        }
        if (mpAt < mpEnd)
            ++mpAt;
        *empty = previous == T('/');
        return count;
    }

    const T* mpAt;
    const T* const mpEnd;
    const XmlLimits mLimits;
};

} // namespace

QString XmlLimitReached(QStringView text, const XmlLimits& limits)
{
    const auto* begin = reinterpret_cast<const char16_t*>(text.utf16());
    return MarkupScanner<char16_t>(begin, begin + text.size(), limits).LimitReached();
}

QString XmlLimitReached(const QByteArray& bytes, const XmlLimits& limits)
{
    // Wide encodings put a zero byte into the first four of an XML document;
    // every other encoding an XML parser takes keeps ASCII as ASCII.
    std::optional<QStringConverter::Encoding> wide = QStringConverter::encodingForData(bytes, u'<');
    if (wide && (*wide == QStringConverter::Utf8 || *wide == QStringConverter::Latin1))
        wide.reset();
    const QByteArray head = bytes.left(4);
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
        return XmlLimitReached(QStringView(text), limits);
    }
    return MarkupScanner<char>(bytes.constData(), bytes.constData() + bytes.size(), limits).LimitReached();
}

} // namespace Kavrel::UICore::Internal
