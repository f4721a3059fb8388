#include <KvUICore/util/Diagnostics_p.h>
#include <KvUICore/util/TranslationTable.h>
#include <KvUICore/util/XmlFiler.h>

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QSaveFile>
#include <QStringConverter>
#include <QStringList>
#include <QTextStream>

#include <limits>

namespace Kavrel::UICore {

class XmlFilerImp
{
public:
    QString msFileName;
    QDomDocument mDocument;
    QDomNode mCurrentNode;
    QList<QDomNode> mRememberedNodes;
    bool mbModified = false;
    QDateTime mLastSaveTime;
    TranslationTable* mpTranslationTable = nullptr;
    bool mbTranslate = true;
    // The root of the innermost RootScope; null without one.
    QDomElement mScopedRoot;

    // What a RootScope replaced, put back when it ends.
    struct SavedScope
    {
        QDomDocument mDocument;
        QDomElement mScopedRoot;
        QDomNode mCurrentNode;
        QList<QDomNode> mRememberedNodes;
    };
    QList<SavedScope> mSavedScopes;

    QDomElement Current() const { return mCurrentNode.toElement(); }

    QDomElement Root() const { return mScopedRoot.isNull() ? mDocument.documentElement() : mScopedRoot; }

    // The raw attribute value; present tells whether the attribute exists.
    QString Attribute(const QString& name, bool* present = nullptr) const
    {
        const QDomElement element = Current();
        const bool has = !element.isNull() && element.hasAttribute(name);
        if (present)
            *present = has;
        return has ? element.attribute(name) : QString();
    }

    bool SetAttribute(const QString& name, const QString& value)
    {
        QDomElement element = Current();
        if (element.isNull() || name.isEmpty())
            return false;
        element.setAttribute(name, value);
        mbModified = true;
        return true;
    }

    void Reset()
    {
        mDocument = QDomDocument();
        mScopedRoot = QDomElement();
        mCurrentNode = QDomNode();
        mRememberedNodes.clear();
        mbModified = false;
    }

    bool SetContent(const QByteArray& data)
    {
        QDomDocument document;
        if (!document.setContent(data, false))
            return false;
        mDocument = document;
        mScopedRoot = QDomElement();
        mCurrentNode = mDocument.documentElement();
        mRememberedNodes.clear();
        mbModified = false;
        return true;
    }

    // The encoding named by the XML declaration; UTF-8 without one.
    QString DeclaredEncoding() const
    {
        const QDomNode first = mDocument.firstChild();
        if (first.isProcessingInstruction() && first.nodeName() == QLatin1String("xml")) {
            const QRegularExpressionMatch match = EncodingPattern().match(first.toProcessingInstruction().data());
            if (match.hasMatch())
                return match.captured(2);
        }
        return QStringLiteral("UTF-8");
    }

    static const QRegularExpression& EncodingPattern()
    {
        // Group 1: up to the opening quote; group 2: the name.
        static const QRegularExpression pattern(QStringLiteral("(encoding\\s*=\\s*[\"'])([^\"']*)"));
        return pattern;
    }

    // The document's bytes in its declared encoding. Text the encoding can't
    // hold, or an encoding that isn't known, would be lost or garbled: the
    // document is then written as UTF-8 and its declaration says so.
    QByteArray Serialize() const
    {
        QString text;
        {
            QTextStream stream(&text);
            mDocument.save(stream, 4, QDomNode::EncodingFromDocument);
        }
        const QString encoding = DeclaredEncoding();
        QStringEncoder encoder(encoding.toLatin1().constData());
        if (encoder.isValid()) {
            QByteArray bytes = encoder.encode(text);
            if (!encoder.hasError())
                return bytes;
        }
        const qsizetype end = text.indexOf(QLatin1String("?>"));
        if (text.startsWith(QLatin1String("<?xml")) && end > 0) {
            QString declaration = text.left(end);
            declaration.replace(EncodingPattern(), QStringLiteral("\\1UTF-8"));
            text.replace(0, end, declaration);
        }
        return text.toUtf8();
    }

    bool WriteFile(const QString& fileName) const
    {
        if (mDocument.isNull() || mDocument.documentElement().isNull() || fileName.isEmpty())
            return false;
        // The temporary file replaces the target only on commit, so an
        // interrupted save never leaves a truncated file behind.
        QSaveFile file(fileName);
        if (!file.open(QIODevice::WriteOnly | QIODevice::Truncate))
            return false;
        const QByteArray bytes = Serialize();
        if (file.write(bytes) != bytes.size()) {
            file.cancelWriting();
            return false;
        }
        return file.commit();
    }

    static QStringList SplitPath(const QString& path, bool* absolute)
    {
        QString normalised = path.trimmed();
        normalised.replace(QLatin1Char('\\'), QLatin1Char('/'));
        *absolute = normalised.startsWith(QLatin1Char('/'));
        return normalised.split(QLatin1Char('/'), Qt::SkipEmptyParts);
    }

    static QDomElement FirstChild(const QDomNode& node, const QString& name)
    {
        return name.isEmpty() ? node.firstChildElement() : node.firstChildElement(name);
    }

    // The parent element; none above a scoped root.
    QDomElement Parent(const QDomNode& node) const
    {
        if (!mScopedRoot.isNull() && node == mScopedRoot)
            return QDomElement();
        return node.parentNode().toElement();
    }

    // Walks a path; creates missing components when create is set.
    bool WalkPath(const QString& path, bool create)
    {
        if (path.trimmed().isEmpty())
            return true;
        bool absolute = false;
        const QStringList components = SplitPath(path, &absolute);
        if (create) {
            for (const QString& component : components) {
                if (!IsNavigation(component) && !IsValidName(component))
                    return false;
            }
        }
        QDomElement element;
        int first = 0;
        if (absolute) {
            element = Root();
            if (!components.isEmpty()) {
                if (IsNavigation(components.first()))
                    return false;
                if (element.isNull()) {
                    if (!create)
                        return false;
                    element = mDocument.createElement(components.first());
                    mDocument.appendChild(element);
                    mbModified = true;
                } else if (element.tagName() != components.first()) {
                    return false;
                }
                first = 1;
            }
            if (element.isNull())
                return false;
        } else {
            element = Current();
            if (element.isNull())
                return false;
        }
        for (int i = first; i < components.size(); ++i) {
            const QString& component = components.at(i);
            if (component == QLatin1String("."))
                continue;
            QDomElement next =
                component == QLatin1String("..") ? Parent(element) : element.firstChildElement(component);
            if (next.isNull()) {
                if (!create || component == QLatin1String(".."))
                    return false;
                next = mDocument.createElement(component);
                element.appendChild(next);
                mbModified = true;
            }
            element = next;
        }
        mCurrentNode = element;
        return true;
    }

    static bool IsNavigation(const QString& component)
    {
        return component == QLatin1String(".") || component == QLatin1String("..");
    }

    static bool IsValidName(const QString& name)
    {
        // XML names: a letter, "_" or ":" first, then letters, digits and ".-_:".
        static const QRegularExpression pattern(QStringLiteral("^[\\p{L}_:][\\p{L}\\p{N}\\p{Mn}\\p{Mc}._:\\-]*$"));
        return !name.isEmpty() && pattern.match(name).hasMatch();
    }

    template <typename T, typename Convert>
    T ReadNumber(const QString& name, T defaultValue, Convert convert) const
    {
        const QString text = Attribute(name).trimmed();
        if (text.isEmpty())
            return defaultValue;
        bool ok = false;
        T value;
        if (text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive))
            value = convert(text.mid(2), &ok, 16);
        else if (text.startsWith(QLatin1String("-0x"), Qt::CaseInsensitive) && std::numeric_limits<T>::is_signed)
            value = T(-convert(text.mid(3), &ok, 16));
        else
            value = convert(text, &ok, 10);
        return ok ? value : defaultValue;
    }

    // Integers separated by commas; false unless exactly count of them parse.
    bool ReadIntegers(const QString& name, int count, int* values) const
    {
        const QStringList parts = Attribute(name).split(QLatin1Char(','));
        if (parts.size() != count)
            return false;
        for (int i = 0; i < count; ++i) {
            bool ok = false;
            values[i] = parts.at(i).trimmed().toInt(&ok);
            if (!ok)
                return false;
        }
        return true;
    }
};

XmlFiler::XmlFiler()
    : mpImp(std::make_unique<XmlFilerImp>())
{
}

XmlFiler::~XmlFiler() = default;

bool XmlFiler::Open(const QString& fileName)
{
    if (fileName.isEmpty() || !QFileInfo::exists(fileName))
        return false;
    QFile file(fileName);
    if (!file.open(QIODevice::ReadOnly)) {
        Internal::WriteDiagnostic(QStringLiteral("XmlFiler: Failed to open file %1. %2 (Error code: %3)")
                                      .arg(fileName, file.errorString(), QString::number(int(file.error()))));
        file.close();
        return false;
    }
    const QByteArray data = file.readAll();
    file.close();
    if (!mpImp->SetContent(data)) {
        mpImp->Reset();
        return false;
    }
    mpImp->msFileName = fileName;
    return true;
}

bool XmlFiler::Parse(const QString& text)
{
    QDomDocument document;
    if (!document.setContent(text, false))
        return false;
    mpImp->mDocument = document;
    mpImp->mScopedRoot = QDomElement();
    mpImp->mCurrentNode = document.documentElement();
    mpImp->mRememberedNodes.clear();
    mpImp->mbModified = false;
    // Text has no file: a later Save() must not overwrite the one opened before.
    mpImp->msFileName.clear();
    return true;
}

bool XmlFiler::OpenOrCreate(const QString& fileName)
{
    if (fileName.isEmpty())
        return false;
    const QFileInfo info(fileName);
    if (info.exists()) {
        if (!Open(fileName)) {
            // An empty file is a settings file that has nothing in it yet; any
            // other failure keeps the file as it is.
            if (!info.isFile() || info.size() > 0) {
                QFile file(fileName);
                if (!file.open(QIODevice::ReadOnly) || !file.readAll().trimmed().isEmpty())
                    return false;
            }
            mpImp->Reset();
            mpImp->msFileName = fileName;
        }
    } else {
        mpImp->Reset();
        mpImp->msFileName = fileName;
    }
    QDomDocument& document = mpImp->mDocument;
    if (document.documentElement().isNull()) {
        const QDomElement root = document.createElement(QStringLiteral("Root"));
        document.appendChild(root);
        bool hasDeclaration = false;
        for (QDomNode node = document.firstChild(); !node.isNull(); node = node.nextSibling()) {
            if (node.isProcessingInstruction() && node.nodeName() == QLatin1String("xml"))
                hasDeclaration = true;
        }
        if (!hasDeclaration)
            document.insertBefore(document.createProcessingInstruction(QStringLiteral("xml"),
                                                                       QStringLiteral("version=\"1.0\"")),
                                  root);
        mpImp->mCurrentNode = root;
        mpImp->mbModified = true;
    }
    return true;
}

bool XmlFiler::Save(const QString& fileName)
{
    if (!mpImp->WriteFile(fileName))
        return false;
    if (!mpImp->msFileName.isEmpty()
        && QFileInfo(fileName).absoluteFilePath() == QFileInfo(mpImp->msFileName).absoluteFilePath()) {
        mpImp->mbModified = false;
        mpImp->mLastSaveTime = QDateTime::currentDateTime();
    }
    return true;
}

bool XmlFiler::Save()
{
    return Save(mpImp->msFileName);
}

bool XmlFiler::SaveIfModified()
{
    if (!mpImp->mbModified || mpImp->mDocument.documentElement().isNull())
        return true;
    if (!mpImp->WriteFile(mpImp->msFileName))
        return false;
    mpImp->mbModified = false;
    mpImp->mLastSaveTime = QDateTime::currentDateTime();
    return true;
}

QString XmlFiler::ToString() const
{
    if (mpImp->mDocument.documentElement().isNull())
        return QString();
    return mpImp->mDocument.toString(1);
}

QString XmlFiler::GetFileName() const
{
    return mpImp->msFileName;
}

QDomDocument XmlFiler::GetDocument() const
{
    return mpImp->mDocument;
}

QDomElement XmlFiler::GetCurrentElement() const
{
    return mpImp->Current();
}

bool XmlFiler::SetCurrentElement(const QDomElement& element)
{
    if (element.isNull() || element.ownerDocument() != mpImp->mDocument)
        return false;
    mpImp->mCurrentNode = element;
    return true;
}

QString XmlFiler::GetElementName() const
{
    return mpImp->Current().tagName();
}

bool XmlFiler::IsModified() const
{
    return mpImp->mbModified;
}

void XmlFiler::SetModified(bool modified)
{
    mpImp->mbModified = modified;
}

QDateTime XmlFiler::GetLastSaveTime() const
{
    return mpImp->mLastSaveTime;
}

void XmlFiler::SetTranslationTable(TranslationTable* table)
{
    mpImp->mpTranslationTable = table;
}

TranslationTable* XmlFiler::GetTranslationTable() const
{
    return mpImp->mpTranslationTable;
}

void XmlFiler::SetTranslate(bool translate)
{
    mpImp->mbTranslate = translate;
}

bool XmlFiler::IsTranslate() const
{
    return mpImp->mbTranslate;
}

bool XmlFiler::GoToDocumentElement()
{
    const QDomElement root = mpImp->Root();
    if (root.isNull())
        return false;
    mpImp->mCurrentNode = root;
    return true;
}

bool XmlFiler::GoToFirstChild()
{
    return GoToFirstChild(QString());
}

bool XmlFiler::GoToFirstChild(const QString& name)
{
    if (mpImp->mCurrentNode.isNull())
        return false;
    const QDomElement child = XmlFilerImp::FirstChild(mpImp->mCurrentNode, name);
    if (child.isNull())
        return false;
    mpImp->mCurrentNode = child;
    return true;
}

bool XmlFiler::GoToNextSibling()
{
    return GoToNextSibling(QString());
}

bool XmlFiler::GoToNextSibling(const QString& name)
{
    if (mpImp->mCurrentNode.isNull())
        return false;
    const QDomElement sibling =
        name.isEmpty() ? mpImp->mCurrentNode.nextSiblingElement() : mpImp->mCurrentNode.nextSiblingElement(name);
    if (sibling.isNull())
        return false;
    mpImp->mCurrentNode = sibling;
    return true;
}

bool XmlFiler::GoToParent()
{
    const QDomElement parent = mpImp->Parent(mpImp->mCurrentNode);
    if (parent.isNull())
        return false;
    mpImp->mCurrentNode = parent;
    return true;
}

bool XmlFiler::GoToPath(const QString& path)
{
    return mpImp->WalkPath(path, false);
}

QDomElement XmlFiler::GetRootElement() const
{
    return mpImp->Root();
}

XmlFiler::RootScope::RootScope(XmlFiler& filer, const QDomElement& root)
    : mFiler(filer)
    , mbActive(!root.isNull())
{
    if (!mbActive)
        return;
    XmlFilerImp& imp = *filer.mpImp;
    imp.mSavedScopes.append({imp.mDocument, imp.mScopedRoot, imp.mCurrentNode, imp.mRememberedNodes});
    // The node's own document is shared, not copied: reads see it as it is.
    imp.mDocument = root.ownerDocument();
    imp.mScopedRoot = root;
    imp.mCurrentNode = root;
    imp.mRememberedNodes.clear();
}

XmlFiler::RootScope::~RootScope()
{
    if (!mbActive)
        return;
    XmlFilerImp& imp = *mFiler.mpImp;
    const XmlFilerImp::SavedScope saved = imp.mSavedScopes.takeLast();
    imp.mDocument = saved.mDocument;
    imp.mScopedRoot = saved.mScopedRoot;
    imp.mCurrentNode = saved.mCurrentNode;
    imp.mRememberedNodes = saved.mRememberedNodes;
}

void XmlFiler::RememberPosition()
{
    mpImp->mRememberedNodes.append(mpImp->mCurrentNode);
}

bool XmlFiler::RestorePosition()
{
    if (mpImp->mRememberedNodes.isEmpty())
        return false;
    mpImp->mCurrentNode = mpImp->mRememberedNodes.takeLast();
    return true;
}

int XmlFiler::GetChildElementCount() const
{
    int count = 0;
    for (QDomElement child = mpImp->mCurrentNode.firstChildElement(); !child.isNull();
         child = child.nextSiblingElement())
        ++count;
    return count;
}

bool XmlFiler::HasAttribute(const QString& name) const
{
    return mpImp->Current().hasAttribute(name);
}

QStringList XmlFiler::GetAttributeNames() const
{
    QStringList names;
    const QDomNamedNodeMap attributes = mpImp->Current().attributes();
    for (int i = 0; i < attributes.count(); ++i)
        names.append(attributes.item(i).nodeName());
    return names;
}

QString XmlFiler::ReadString(const QString& name, const QString& defaultValue) const
{
    bool present = false;
    const QString value = mpImp->Attribute(name, &present);
    return present ? Translate(value) : defaultValue;
}

int XmlFiler::ReadInt(const QString& name, int defaultValue) const
{
    return mpImp->ReadNumber<int>(name, defaultValue,
                                  [](const QString& s, bool* ok, int base) { return s.toInt(ok, base); });
}

uint XmlFiler::ReadUInt(const QString& name, uint defaultValue) const
{
    return mpImp->ReadNumber<uint>(name, defaultValue,
                                   [](const QString& s, bool* ok, int base) { return s.toUInt(ok, base); });
}

long XmlFiler::ReadLong(const QString& name, long defaultValue) const
{
    return mpImp->ReadNumber<long>(name, defaultValue,
                                   [](const QString& s, bool* ok, int base) { return s.toLong(ok, base); });
}

ulong XmlFiler::ReadULong(const QString& name, ulong defaultValue) const
{
    return mpImp->ReadNumber<ulong>(name, defaultValue,
                                    [](const QString& s, bool* ok, int base) { return s.toULong(ok, base); });
}

qlonglong XmlFiler::ReadLongLong(const QString& name, qlonglong defaultValue) const
{
    return mpImp->ReadNumber<qlonglong>(name, defaultValue,
                                        [](const QString& s, bool* ok, int base) { return s.toLongLong(ok, base); });
}

qulonglong XmlFiler::ReadULongLong(const QString& name, qulonglong defaultValue) const
{
    return mpImp->ReadNumber<qulonglong>(
        name, defaultValue, [](const QString& s, bool* ok, int base) { return s.toULongLong(ok, base); });
}

double XmlFiler::ReadDouble(const QString& name, double defaultValue) const
{
    const QString text = mpImp->Attribute(name).trimmed();
    if (text.isEmpty())
        return defaultValue;
    bool ok = false;
    const double value = text.toDouble(&ok);
    return ok ? value : defaultValue;
}

bool XmlFiler::ReadBool(const QString& name, bool defaultValue) const
{
    const QString text = mpImp->Attribute(name).trimmed();
    if (text.compare(QLatin1String("True"), Qt::CaseInsensitive) == 0 || text == QLatin1String("1"))
        return true;
    if (text.compare(QLatin1String("False"), Qt::CaseInsensitive) == 0 || text == QLatin1String("0"))
        return false;
    return defaultValue;
}

QDateTime XmlFiler::ReadDateTime(const QString& name, const QDateTime& defaultValue) const
{
    const QString text = mpImp->Attribute(name).trimmed();
    if (text.isEmpty())
        return defaultValue;
    QDateTime value = QDateTime::fromString(text, Qt::ISODateWithMs);
    if (!value.isValid())
        value = QDateTime::fromString(text, Qt::ISODate);
    return value.isValid() ? value : defaultValue;
}

QRect XmlFiler::ReadRect(const QString& name, const QRect& defaultValue) const
{
    int v[4];
    return mpImp->ReadIntegers(name, 4, v) ? QRect(v[0], v[1], v[2], v[3]) : defaultValue;
}

QSize XmlFiler::ReadSize(const QString& name, const QSize& defaultValue) const
{
    int v[2];
    return mpImp->ReadIntegers(name, 2, v) ? QSize(v[0], v[1]) : defaultValue;
}

QPoint XmlFiler::ReadPoint(const QString& name, const QPoint& defaultValue) const
{
    int v[2];
    return mpImp->ReadIntegers(name, 2, v) ? QPoint(v[0], v[1]) : defaultValue;
}

int XmlFiler::ReadEnum(const QString& name, const XmlWordTable& table, int defaultValue) const
{
    const QString text = mpImp->Attribute(name).trimmed();
    if (text.isEmpty())
        return defaultValue;
    for (const auto& [value, word] : table) {
        if (text.compare(word, Qt::CaseInsensitive) == 0)
            return value;
    }
    return defaultValue;
}

int XmlFiler::ReadFlags(const QString& name, const XmlWordTable& table, int defaultValue) const
{
    const QString text = mpImp->Attribute(name);
    if (text.trimmed().isEmpty())
        return defaultValue;
    QStringList words = text.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (QString& word : words)
        word = word.trimmed();
    bool matched = false;
    int result = 0;
    for (const auto& [value, word] : table) {
        if (words.contains(word, Qt::CaseInsensitive)) {
            result |= value;
            matched = true;
        }
    }
    return matched ? result : defaultValue;
}

QString XmlFiler::ReadElementText() const
{
    return mpImp->Current().text();
}

QByteArray XmlFiler::ReadBinary() const
{
    return QByteArray::fromBase64(mpImp->Current().text().toLatin1());
}

QString XmlFiler::ReadInnerXml() const
{
    QString xml;
    QTextStream stream(&xml);
    for (QDomNode child = mpImp->Current().firstChild(); !child.isNull(); child = child.nextSibling())
        child.save(stream, 4);
    stream.flush();
    return xml;
}

QString XmlFiler::ReadOuterXml() const
{
    const QDomElement element = mpImp->Current();
    if (element.isNull())
        return QString();
    QString xml;
    QTextStream stream(&xml);
    element.save(stream, 4);
    stream.flush();
    return xml;
}

bool XmlFiler::CreateElement(const QString& name)
{
    if (!XmlFilerImp::IsValidName(name))
        return false;
    QDomDocument& document = mpImp->mDocument;
    QDomElement current = mpImp->Current();
    QDomElement element = document.createElement(name);
    if (current.isNull()) {
        if (!document.documentElement().isNull())
            return false;
        document.appendChild(element);
    } else {
        current.appendChild(element);
    }
    mpImp->mCurrentNode = element;
    mpImp->mbModified = true;
    return true;
}

bool XmlFiler::CreatePath(const QString& path)
{
    return mpImp->WalkPath(path, true);
}

bool XmlFiler::RemoveCurrentElement()
{
    QDomNode node = mpImp->mCurrentNode;
    QDomNode parent = node.parentNode();
    if (node.isNull() || parent.isNull())
        return false;
    parent.removeChild(node);
    mpImp->mCurrentNode = parent.isElement() ? parent : QDomNode();
    mpImp->mbModified = true;
    return true;
}

int XmlFiler::RemoveChildren(const QString& name)
{
    QDomNode current = mpImp->mCurrentNode;
    if (current.isNull())
        return 0;
    int removed = 0;
    QDomNode child = current.firstChild();
    while (!child.isNull()) {
        const QDomNode next = child.nextSibling();
        if (name.isEmpty() || (child.isElement() && child.toElement().tagName() == name)) {
            current.removeChild(child);
            ++removed;
        }
        child = next;
    }
    if (removed > 0)
        mpImp->mbModified = true;
    return removed;
}

bool XmlFiler::RemoveAttribute(const QString& name)
{
    QDomElement element = mpImp->Current();
    if (element.isNull() || !element.hasAttribute(name))
        return false;
    element.removeAttribute(name);
    mpImp->mbModified = true;
    return true;
}

bool XmlFiler::InsertFragment(const QString& fragment)
{
    QDomElement current = mpImp->Current();
    if (current.isNull())
        return false;
    QDomDocument wrapper;
    if (!wrapper.setContent(QLatin1String("<Root>") + fragment + QLatin1String("</Root>"), false))
        return false;
    const QDomNodeList children = wrapper.documentElement().childNodes();
    for (int i = 0; i < children.count(); ++i)
        current.appendChild(mpImp->mDocument.importNode(children.at(i), true));
    mpImp->mbModified = true;
    return true;
}

bool XmlFiler::WriteString(const QString& name, const QString& value)
{
    return mpImp->SetAttribute(name, value);
}

bool XmlFiler::WriteInt(const QString& name, int value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteUInt(const QString& name, uint value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteLong(const QString& name, long value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteULong(const QString& name, ulong value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteLongLong(const QString& name, qlonglong value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteULongLong(const QString& name, qulonglong value)
{
    return mpImp->SetAttribute(name, QString::number(value));
}

bool XmlFiler::WriteDouble(const QString& name, double value)
{
    // The shortest text that reads back as the same double.
    return mpImp->SetAttribute(name, QString::number(value, 'g', QLocale::FloatingPointShortest));
}

bool XmlFiler::WriteBool(const QString& name, bool value)
{
    return mpImp->SetAttribute(name, value ? QStringLiteral("True") : QStringLiteral("False"));
}

bool XmlFiler::WriteDateTime(const QString& name, const QDateTime& value)
{
    return mpImp->SetAttribute(name, value.isValid() ? value.toString(Qt::ISODateWithMs) : QString());
}

bool XmlFiler::WriteRect(const QString& name, const QRect& value)
{
    return mpImp->SetAttribute(
        name, QStringLiteral("%1,%2,%3,%4").arg(value.x()).arg(value.y()).arg(value.width()).arg(value.height()));
}

bool XmlFiler::WriteSize(const QString& name, const QSize& value)
{
    return mpImp->SetAttribute(name, QStringLiteral("%1,%2").arg(value.width()).arg(value.height()));
}

bool XmlFiler::WritePoint(const QString& name, const QPoint& value)
{
    return mpImp->SetAttribute(name, QStringLiteral("%1,%2").arg(value.x()).arg(value.y()));
}

bool XmlFiler::WriteEnum(const QString& name, const XmlWordTable& table, int value)
{
    for (const auto& [tableValue, word] : table) {
        if (tableValue == value)
            return mpImp->SetAttribute(name, word);
    }
    return false;
}

bool XmlFiler::WriteFlags(const QString& name, const XmlWordTable& table, int value)
{
    // Words with more bits first, so that a combined word stands for its parts.
    XmlWordTable sorted = table;
    std::stable_sort(sorted.begin(), sorted.end(), [](const auto& a, const auto& b) {
        return qPopulationCount(quint32(a.first)) > qPopulationCount(quint32(b.first));
    });
    QStringList words;
    int covered = 0;
    for (const auto& [tableValue, word] : std::as_const(sorted)) {
        if (tableValue == 0 || (value & tableValue) != tableValue || (covered & tableValue) == tableValue)
            continue;
        words.append(word);
        covered |= tableValue;
    }
    if (covered != value)
        return false;
    return mpImp->SetAttribute(name, words.join(QLatin1Char(',')));
}

bool XmlFiler::WriteElementText(const QString& text, bool asCData)
{
    QDomElement element = mpImp->Current();
    if (element.isNull())
        return false;
    QDomNode child = element.firstChild();
    while (!child.isNull()) {
        const QDomNode next = child.nextSibling();
        if (child.isText() || child.isCDATASection())
            element.removeChild(child);
        child = next;
    }
    QDomDocument& document = mpImp->mDocument;
    if (!asCData) {
        element.appendChild(document.createTextNode(text));
    } else {
        // "]]>" can't stand inside one section: it is split between two.
        const QStringList pieces = text.split(QLatin1String("]]>"));
        for (int i = 0; i < pieces.size(); ++i) {
            QString piece = pieces.at(i);
            if (i > 0)
                piece.prepend(QLatin1Char('>'));
            if (i + 1 < pieces.size())
                piece.append(QLatin1String("]]"));
            element.appendChild(document.createCDATASection(piece));
        }
    }
    mpImp->mbModified = true;
    return true;
}

bool XmlFiler::WriteBinary(const QByteArray& data)
{
    return WriteElementText(QString::fromLatin1(data.toBase64()));
}

QString XmlFiler::Translate(const QString& text) const
{
    if (!mpImp->mbTranslate)
        return text;
    QString id;
    if (!IsTranslatable(text, &id))
        return text;
    return mpImp->mpTranslationTable ? mpImp->mpTranslationTable->GetText(id) : id;
}

bool XmlFiler::IsTranslatable(const QString& text, QString* id)
{
    // Cheap test first: most attribute values have no parenthesis at all.
    if (!text.contains(QLatin1Char('(')))
        return false;
    static const QRegularExpression opening(QStringLiteral("^\\s*tr\\s*\\("),
                                            QRegularExpression::CaseInsensitiveOption);
    static const QRegularExpression closing(QStringLiteral("\\)\\s*$"));
    const QRegularExpressionMatch open = opening.match(text);
    if (!open.hasMatch())
        return false;
    const QRegularExpressionMatch close = closing.match(text, open.capturedEnd());
    if (!close.hasMatch())
        return false;
    if (id)
        *id = text.mid(open.capturedEnd(), close.capturedStart() - open.capturedEnd()).trimmed();
    return true;
}

} // namespace Kavrel::UICore
