#include <KvUICore/theme/ThemeFileReader_p.h>

#include <QBuffer>
#include <QColor>
#include <QCoreApplication>
#include <QDateTime>
#include <QFileInfo>
#include <QImage>
#include <QImageReader>
#include <QLinearGradient>
#include <QList>
#include <QMetaType>
#include <QSize>

#include <algorithm>

namespace Kavrel::UICore::Internal {

namespace {

// The reader's messages reach the user in the theme manager's warning box.
struct ReaderText
{
    Q_DECLARE_TR_FUNCTIONS(ThemeFileReader)
};

} // namespace

QString UnreadableFileReason(const QString& path)
{
    const QFileInfo info(path);
    if (!info.exists())
        return ReaderText::tr("The file does not exist");
    // A FIFO would block the reader forever, a device never ends.
    if (!info.isFile())
        return ReaderText::tr("Not a regular file");
    if (info.size() > kMaximumFileSize)
        return ReaderText::tr("The file is larger than %1 bytes").arg(kMaximumFileSize);
    return QString();
}

ThemeFileReader::ThemeFileReader(ThemeValueTable& table, TextOf textOf)
    : mTable(table)
    , mTextOf(std::move(textOf))
{
}

void ThemeFileReader::RegisterMetaTypes()
{
    qRegisterMetaType<QLinearGradient>("QLinearGradient");
    qRegisterMetaType<QList<QImage>>("QList<QImage>");
}

bool ThemeFileReader::Read(QIODevice* device)
{
    RegisterMetaTypes();
    miExpansionBudget = kMaximumFileExpansion;
    // Read whole and bounded before parsing: a pipe or a file that keeps
    // growing cannot hold the reader.
    QByteArray data;
    if (!device || device->isSequential()) {
        mReader.clear();
        RaiseError(ReaderText::tr("Not a regular file"));
        return false;
    }
    data = device->read(kMaximumFileSize + 1);
    mReader.clear();
    if (data.size() > kMaximumFileSize) {
        RaiseError(ReaderText::tr("The file is larger than %1 bytes").arg(kMaximumFileSize));
        return false;
    }
    mReader.addData(data);
    while (!mReader.atEnd() && !mReader.hasError()) {
        mReader.readNext();
        if (!mReader.isStartElement())
            continue;
        if (mReader.name() == QLatin1String("xbel")
            && mReader.attributes().value(QLatin1String("version")) == QLatin1String("1.0")) {
            ReadRoot();
        } else {
            RaiseError(ReaderText::tr("The file is not an XBEL version 1.0 file."));
        }
    }
    return !mReader.hasError();
}

void ThemeFileReader::ReadRoot()
{
    while (mReader.readNextStartElement()) {
        const QStringView element = mReader.name();
        const QString name = mReader.attributes().value(QLatin1String("name")).toString();
        msEntryName = name;
        if (element == QLatin1String("Color"))
            ReadColor(name);
        else if (element == QLatin1String("Icon"))
            ReadIcon(name);
        else if (element == QLatin1String("StyleSheet"))
            ReadStyleSheet(name);
        else if (element == QLatin1String("Size"))
            ReadSize(name);
        else if (element == QLatin1String("Int"))
            ReadInt(name, false);
        else if (element == QLatin1String("String"))
            ReadString(name);
        else if (element == QLatin1String("ScalableInt"))
            ReadInt(name, true);
        else
            mReader.skipCurrentElement();
        if (mReader.hasError())
            return;
    }
}

void ThemeFileReader::ReadColor(const QString& name)
{
    QList<QColor> colors;
    QList<qreal> anchors;
    while (mReader.readNextStartElement()) {
        const QStringView element = mReader.name();
        if (element != QLatin1String("rgba") && element != QLatin1String("hex")) {
            mReader.skipCurrentElement();
            continue;
        }
        const QStringView anchor = mReader.attributes().value(QLatin1String("anchor"));
        if (!anchor.isEmpty())
            anchors.append(anchor.toDouble());
        colors.append(element == QLatin1String("rgba") ? ReadRgbaColor() : ReadHexColor());
        if (mReader.hasError())
            return;
        mReader.skipCurrentElement();
    }
    if (mReader.hasError() || colors.isEmpty())
        return;
    if (colors.size() == 1) {
        Store(name, QVariant::fromValue(colors.first()));
        return;
    }
    // Anchors are collected only where present: stop i pairs anchor i with colour i.
    QLinearGradient gradient;
    const qsizetype stops = qMin(colors.size(), anchors.size());
    for (qsizetype i = 0; i < stops; ++i)
        gradient.setColorAt(anchors.at(i), colors.at(i));
    Store(name, QVariant::fromValue(gradient));
}

QColor ThemeFileReader::ReadRgbaColor()
{
    // Channels are plain numbers: a reference reads as 0.
    return QColor(ReadNumber(QStringLiteral("r"), false), ReadNumber(QStringLiteral("g"), false),
                  ReadNumber(QStringLiteral("b"), false), ReadNumber(QStringLiteral("a"), false));
}

QColor ThemeFileReader::ReadHexColor()
{
    const QString value = mReader.attributes().value(QLatin1String("value")).toString();
    if (!value.startsWith(QLatin1Char('#')))
        return QColor();
    if (value.size() != 7 && value.size() != 9)
        RaiseError(ReaderText::tr("The hex format of color is invalid!"));
    auto channel = [&](int position) {
        bool ok = false;
        const int v = value.mid(position, 2).toInt(&ok, 16);
        if (!ok) {
            RaiseError(ReaderText::tr("Invalid hex format!"));
            return 0;
        }
        return v;
    };
    const int r = channel(1);
    const int g = channel(3);
    const int b = channel(5);
    const int a = value.size() == 9 ? channel(7) : 255;
    return QColor(r, g, b, a);
}

namespace {

// Decoded icon files by path. Switching back and forth between themes reads the
// same files again and again; decoding their images is most of a theme load.
struct CachedIcon
{
    QDateTime modified;
    qint64 size = -1;
    QList<QImage> images;
    qint64 bytes = 0;
};

// Oldest entries are dropped first once the decoded images pass the limit.
struct IconCache
{
    QHash<QString, CachedIcon> entries;
    QList<QString> order;
    qint64 bytes = 0;

    void Remove(const QString& file)
    {
        const auto it = entries.constFind(file);
        if (it == entries.cend())
            return;
        bytes -= it->bytes;
        entries.erase(it);
        order.removeOne(file);
    }

    void Insert(const QString& file, CachedIcon icon)
    {
        Remove(file);
        if (icon.bytes > kMaximumIconCacheBytes)
            return;
        while (bytes + icon.bytes > kMaximumIconCacheBytes && !order.isEmpty())
            Remove(order.constFirst());
        bytes += icon.bytes;
        order.append(file);
        entries.insert(file, std::move(icon));
    }
};

IconCache& iconCache()
{
    static IconCache cache;
    return cache;
}

QList<QImage> readImages(const QString& file, qint64* bytes)
{
    QList<QImage> images;
    *bytes = 0;
    // Like a missing file, one that is no regular file or too large gives no images.
    if (!UnreadableFileReason(file).isEmpty())
        return images;
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    const int count = qBound(1, reader.imageCount(), kMaximumIconImages);
    for (int i = 0; i < count; ++i) {
        if (i > 0 && !reader.jumpToImage(i))
            break;
        // The frame's size is known before decoding: a frame that would pass
        // the icon's budget is not decoded at all.
        const QSize size = reader.size();
        if (size.isValid() && *bytes + qint64(size.width()) * size.height() * 4 > kMaximumIconBytes)
            break;
        QImage image;
        if (!reader.read(&image))
            break;
        if (*bytes + image.sizeInBytes() > kMaximumIconBytes)
            break;
        *bytes += image.sizeInBytes();
        images.append(image);
    }
    return images;
}

} // namespace

void ClearIconCache()
{
    IconCache& cache = iconCache();
    cache.entries.clear();
    cache.order.clear();
    cache.bytes = 0;
}

void ThemeFileReader::ReadIcon(const QString& name)
{
    const QString file = mReader.attributes().value(QLatin1String("file")).toString();
    const QFileInfo info(file);
    const QDateTime modified = info.lastModified();
    const qint64 size = info.size();
    IconCache& cache = iconCache();
    const auto cached = cache.entries.constFind(file);
    if (cached == cache.entries.cend() || cached->modified != modified || cached->size != size) {
        qint64 bytes = 0;
        QList<QImage> images = readImages(file, &bytes);
        Store(name, QVariant::fromValue(images));
        if (info.exists())
            cache.Insert(file, CachedIcon{modified, size, std::move(images), bytes});
    } else {
        Store(name, QVariant::fromValue(cached->images));
    }
    mReader.skipCurrentElement();
}

void ThemeFileReader::ReadStyleSheet(const QString& name)
{
    QString text;
    mReader.readNext();
    if (mReader.isCharacters()) {
        text = mReader.text().toString();
        mReader.readNext();
    }
    // Anything after the single text token is not part of the style sheet.
    while (!mReader.atEnd() && !mReader.hasError() && !mReader.isEndElement()) {
        if (mReader.isStartElement())
            mReader.skipCurrentElement();
        mReader.readNext();
    }
    if (mReader.hasError() || !Substitute(text))
        return;
    Store(name, QVariant(text));
}

void ThemeFileReader::ReadSize(const QString& name)
{
    const int width = ReadNumber(QStringLiteral("width"), true);
    const int height = ReadNumber(QStringLiteral("height"), true);
    if (mReader.hasError())
        return;
    Store(name, QVariant(QSize(width, height)));
    mReader.skipCurrentElement();
}

void ThemeFileReader::ReadInt(const QString& name, bool scalable)
{
    const int value = ReadNumber(QStringLiteral("value"), true);
    if (mReader.hasError())
        return;
    // ScalableInt values are design sizes; the conversion keeps them as they are.
    Store(name, QVariant(value));
    Q_UNUSED(scalable);
    mReader.skipCurrentElement();
}

void ThemeFileReader::ReadString(const QString& name)
{
    const QStringView attribute = mReader.attributes().value(QLatin1String("value"));
    if (!attribute.isEmpty()) {
        Store(name, QVariant(attribute.toString()));
        mReader.skipCurrentElement();
        return;
    }
    // The content is the run of character tokens right after the start tag; a
    // comment or a child element ends it.
    QString text;
    while (mReader.readNext() == QXmlStreamReader::Characters)
        text += mReader.text();
    if (!mReader.isEndElement())
        SkipToEndElement();
    if (!mReader.hasError())
        Store(name, QVariant(text));
}

void ThemeFileReader::SkipToEndElement()
{
    while (!mReader.atEnd() && !mReader.hasError() && !mReader.isEndElement()) {
        if (mReader.isStartElement())
            mReader.skipCurrentElement();
        mReader.readNext();
    }
}

int ThemeFileReader::ReadNumber(const QString& attribute, bool substitute)
{
    QString text = mReader.attributes().value(attribute).toString();
    if (substitute && text.contains(QLatin1Char('$')) && !Substitute(text))
        return 0;
    return text.trimmed().toInt();
}

bool ThemeFileReader::Substitute(QString& text)
{
    if (!mTextOf)
        return true;
    switch (SubstituteReferences(text, mTextOf, &miExpansionBudget)) {
    case Substitution::Done:
        return true;
    case Substitution::ValueTooLong:
        RaiseError(ReaderText::tr("The value of %1 grows beyond %2 characters when its references are expanded.")
                       .arg(msEntryName)
                       .arg(kMaximumValueLength));
        return false;
    case Substitution::BudgetSpent:
        RaiseError(
            ReaderText::tr("The references of the file expand to more than %1 characters.").arg(kMaximumFileExpansion));
        return false;
    }
    return false;
}

void ThemeFileReader::RaiseError(const QString& message)
{
    if (!mReader.hasError())
        mReader.raiseError(message);
}

void ThemeFileReader::Store(const QString& name, const QVariant& value)
{
    // A later entry of the same name replaces the earlier value object.
    delete mTable.value(name, nullptr);
    mTable.insert(name, new QVariant(value));
}

QString ThemeValueText(const QVariant* value)
{
    if (!value)
        return QString();
    if (value->metaType() == QMetaType::fromType<QColor>())
        return value->value<QColor>().name(QColor::HexArgb);
    if (value->metaType() == QMetaType::fromType<QLinearGradient>()) {
        const QGradientStops stops = value->value<QLinearGradient>().stops();
        if (stops.isEmpty())
            return QString();
        QString text = QStringLiteral("qlineargradient(x1:0, y1:0, x2:0, y2:1, ");
        for (const QGradientStop& stop : stops)
            text += QStringLiteral("stop:%1 %2, ").arg(stop.first).arg(QVariant(stop.second).toString());
        text.chop(2);
        text += QLatin1String(" )");
        return text;
    }
    return value->toString();
}

Substitution SubstituteReferences(QString& text, const std::function<QString(const QString&)>& textOf,
                                  qsizetype* budget)
{
    if (!text.contains(QLatin1String("$(")))
        return Substitution::Done;
    // The text still to scan is kept reversed, so that expanded text goes in
    // front of it by appending and nothing is ever moved twice. A reference
    // is "$(", then the shortest run up to ")" on the same line.
    QString pending = text;
    std::reverse(pending.begin(), pending.end());
    QString done;
    done.reserve(text.size());
    auto consume = [&](qsizetype count) {
        const qsizetype from = done.size();
        done.append(QStringView(pending).right(count));
        std::reverse(done.begin() + from, done.end());
        pending.chop(count);
    };
    int expansions = 0;
    while (!pending.isEmpty() && expansions < kMaximumExpansions) {
        const qsizetype last = pending.size() - 1; // the logical first character
        qsizetype start = -1;                      // logical index of the match
        qsizetype end = -1;                        // logical index of its ")"
        qsizetype scanned = pending.size();        // characters known to hold no match
        for (qsizetype i = 0; i < last; ++i) {
            if (pending.at(last - i) != QLatin1Char('$') || pending.at(last - i - 1) != QLatin1Char('('))
                continue;
            qsizetype j = i + 2;
            while (j <= last && pending.at(last - j) != QLatin1Char(')') && pending.at(last - j) != QLatin1Char('\n'))
                ++j;
            if (j <= last && pending.at(last - j) == QLatin1Char(')')) {
                start = i;
                end = j;
            } else {
                // Every "$(" before the line break runs into it too.
                scanned = qMin(j + 1, pending.size());
            }
            break;
        }
        if (start < 0) {
            consume(scanned);
            continue;
        }
        QString name = QStringView(pending).mid(last - end + 1, end - start - 2).toString();
        std::reverse(name.begin(), name.end());
        if (name.isEmpty()) {
            consume(start + 1);
            continue;
        }
        const QString inserted = textOf(name);
        ++expansions;
        const qsizetype length = done.size() + pending.size() - (end - start + 1) + inserted.size();
        if (length > kMaximumValueLength)
            return Substitution::ValueTooLong;
        if (budget) {
            if (inserted.size() > *budget)
                return Substitution::BudgetSpent;
            *budget -= inserted.size();
        }
        consume(start);
        pending.chop(end - start + 1);
        // Rescanning text that names itself would never end.
        if (inserted.contains(name)) {
            done += inserted;
        } else {
            const qsizetype from = pending.size();
            pending += inserted;
            std::reverse(pending.begin() + from, pending.end());
        }
    }
    consume(pending.size());
    text = done;
    return Substitution::Done;
}

} // namespace Kavrel::UICore::Internal
