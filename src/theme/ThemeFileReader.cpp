#include <KvUICore/theme/ThemeFileReader_p.h>

#include <QCoreApplication>
#include <QColor>
#include <QImage>
#include <QDateTime>
#include <QFileInfo>
#include <QImageReader>
#include <QLinearGradient>
#include <QList>
#include <QMetaType>
#include <QRegularExpression>
#include <QSize>

namespace Kavrel::UICore::Internal {

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("ThemeFileReader", text);
}

} // namespace

ThemeFileReader::ThemeFileReader(ThemeValueTable& table, Substitute substitute)
    : mTable(table)
    , mSubstitute(std::move(substitute))
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
    mReader.setDevice(device);
    while (!mReader.atEnd() && !mReader.hasError()) {
        mReader.readNext();
        if (!mReader.isStartElement())
            continue;
        if (mReader.name() == QLatin1String("xbel")
            && mReader.attributes().value(QLatin1String("version")) == QLatin1String("1.0")) {
            ReadRoot();
        } else {
            RaiseError(tr("The file is not an XBEL version 1.0 file."));
        }
    }
    return !mReader.hasError();
}

void ThemeFileReader::ReadRoot()
{
    while (mReader.readNextStartElement()) {
        const QStringView element = mReader.name();
        const QString name = mReader.attributes().value(QLatin1String("name")).toString();
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
    return QColor(ReadNumber(QStringLiteral("r")), ReadNumber(QStringLiteral("g")), ReadNumber(QStringLiteral("b")),
                  ReadNumber(QStringLiteral("a")));
}

QColor ThemeFileReader::ReadHexColor()
{
    const QString value = mReader.attributes().value(QLatin1String("value")).toString();
    if (!value.startsWith(QLatin1Char('#')))
        return QColor();
    if (value.size() != 7 && value.size() != 9)
        RaiseError(tr("The hex format of color is invalid!"));
    auto channel = [&](int position) {
        bool ok = false;
        const int v = value.mid(position, 2).toInt(&ok, 16);
        if (!ok) {
            RaiseError(tr("Invalid hex format!"));
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
};

QHash<QString, CachedIcon>& iconCache()
{
    static QHash<QString, CachedIcon> cache;
    return cache;
}

QList<QImage> readImages(const QString& file)
{
    QList<QImage> images;
    QImageReader reader(file);
    reader.setDecideFormatFromContent(true);
    const int count = reader.imageCount();
    for (int i = 0; i < qMax(count, 1); ++i) {
        if (i > 0 && !reader.jumpToImage(i))
            break;
        QImage image;
        if (!reader.read(&image))
            break;
        images.append(image);
    }
    return images;
}

} // namespace

void ClearIconCache()
{
    iconCache().clear();
}

void ThemeFileReader::ReadIcon(const QString& name)
{
    const QString file = mReader.attributes().value(QLatin1String("file")).toString();
    const QFileInfo info(file);
    const QDateTime modified = info.lastModified();
    const qint64 size = info.size();
    auto cached = iconCache().find(file);
    if (cached == iconCache().end() || cached->modified != modified || cached->size != size) {
        QList<QImage> images = readImages(file);
        if (info.exists())
            cached = iconCache().insert(file, CachedIcon{modified, size, images});
        Store(name, QVariant::fromValue(images));
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
    if (mReader.hasError())
        return;
    Store(name, QVariant(mSubstitute ? mSubstitute(text) : text));
}

void ThemeFileReader::ReadSize(const QString& name)
{
    const int width = ReadNumber(QStringLiteral("width"));
    const int height = ReadNumber(QStringLiteral("height"));
    Store(name, QVariant(QSize(width, height)));
    mReader.skipCurrentElement();
}

void ThemeFileReader::ReadInt(const QString& name, bool scalable)
{
    const int value = ReadNumber(QStringLiteral("value"));
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
    QString text;
    while (!mReader.atEnd()) {
        mReader.readNext();
        if (mReader.isCharacters())
            text += mReader.text();
        else if (mReader.isStartElement())
            mReader.skipCurrentElement();
        else if (mReader.isEndElement() || mReader.hasError())
            break;
    }
    if (!mReader.hasError())
        Store(name, QVariant(text));
}

int ThemeFileReader::ReadNumber(const QString& attribute)
{
    QString text = mReader.attributes().value(attribute).toString();
    if (text.contains(QLatin1Char('$')) && mSubstitute)
        text = mSubstitute(text);
    return text.trimmed().toInt();
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

QString SubstituteReferences(QString text, const std::function<QString(const QString&)>& textOf)
{
    static const QRegularExpression reference(QStringLiteral("\\$\\(.*\\)"),
                                              QRegularExpression::InvertedGreedinessOption);
    // A cap on expansions: references that name each other in a ring would
    // otherwise never end.
    constexpr int kMaximumExpansions = 4096;
    int expansions = 0;
    qsizetype position = 0;
    while (position < text.size() && expansions < kMaximumExpansions) {
        const QRegularExpressionMatch match = reference.match(text, position);
        if (!match.hasMatch())
            break;
        const qsizetype start = match.capturedStart();
        const QString name = text.mid(start + 2, match.capturedLength() - 3);
        if (name.isEmpty()) {
            position = start + 1;
            continue;
        }
        const QString inserted = textOf(name);
        ++expansions;
        text.replace(start, match.capturedLength(), inserted);
        // Rescanning text that names itself would never end.
        position = inserted.contains(name) ? start + inserted.size() : start;
    }
    return text;
}

} // namespace Kavrel::UICore::Internal
