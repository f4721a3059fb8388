#pragma once

#include <KvUICore/KvUICoreExport.h>

#include <QByteArray>
#include <QDateTime>
#include <QDomDocument>
#include <QList>
#include <QPair>
#include <QPoint>
#include <QRect>
#include <QSize>
#include <QString>

#include <functional>
#include <memory>

namespace Kavrel::UICore {

class TranslationTable;
class XmlFilerImp;

namespace Internal {
class AttributeReadLog;
}

/// A table of (value, word) pairs for enumerated and flags attributes. Words
/// match without regard to case.
using XmlWordTable = QList<QPair<int, QString>>;

/// Reader and writer of small XML documents: settings files and UI definitions.
///
/// The filer wraps one DOM document and a cursor, the current element, which
/// every read and write addresses. Reads never fail: an absent attribute gives
/// the caller's default. Navigation that fails leaves the cursor where it was.
/// Every write marks the document as modified, for SaveIfModified.
///
/// Paths: components are separated by "/" (a backslash counts as "/"), empty
/// components are skipped. A path starting with "/" is absolute and its first
/// component names the document element; any other path starts at the cursor.
/// "." stays and ".." goes to the parent element.
///
/// Text forms: bool is "True" or "False" (reading also takes "1" and "0"),
/// QRect is "x,y,width,height", QSize "width,height", QPoint "x,y". Integers are
/// decimal ("0x" introduces hexadecimal when reading). QDateTime is ISO 8601
/// with milliseconds: a UTC time ends in "Z", a time with an offset carries it
/// ("+02:00"), a local time carries none and reads back as local time. Empty or
/// malformed values read as the default.
///
/// Saving is atomic: the document goes to a temporary file that replaces the
/// target only once it is complete, so a failed save leaves the old file whole;
/// where no temporary file can be made (a read-only folder), the save fails
/// rather than writing the file in place. The document is written in the
/// encoding its XML declaration names; when that encoding is unknown or can't
/// hold the text, it is written as UTF-8 and the declaration is changed to say
/// so, rather than losing characters. A save writes only what reads back as
/// the same document: one that would not (a name that is no XML name, a
/// comment holding "--", nesting beyond the limit below, ...) is refused with
/// a diagnostic and the file is left as it was.
///
/// Shared files: a save holds a lock file beside the target ("<file>.lock";
/// one left behind by a process that died is taken over). When the file was
/// changed by someone else since this filer read or last saved it, the
/// filer's own changes (its writes, created and removed elements, texts,
/// fragments) are replayed onto the file's new content instead of replacing
/// it, so neither writer's updates are lost. Elements are matched by their
/// path of names, an element by its position among siblings of the same name;
/// elements this filer created are matched as the ones it created. Changes
/// made directly through the DOM handles (GetDocument, GetCurrentElement) are
/// not replayed: use Update for those.
///
/// Limits: everything the filer reads, files and text alike, is checked before
/// a document is built. A file must be a regular file (no folder, pipe or
/// device) of at most kMaxFileSize bytes; elements nest at most kMaxDepth
/// levels, carry at most kMaxAttributes attributes each, and a document holds
/// at most kMaxNodes nodes (attributes included). Beyond a limit the read
/// fails as for a malformed document, and a diagnostic names the file and the
/// limit. OpenOrCreate and Update, which read a file in order to write it
/// back, also refuse a file that the DOM can't write back as it was read.
///
/// Not thread-safe; use it on one thread.
class KVUICORE_EXPORT XmlFiler
{
public:
    /// The largest file the filer reads, in bytes.
    static constexpr qint64 kMaxFileSize = 8 * 1024 * 1024;
    /// The deepest nesting of elements the filer reads or writes.
    static constexpr int kMaxDepth = 256;
    /// The most attributes one element may carry.
    static constexpr int kMaxAttributes = 256;
    /// The most nodes (attributes included) a document may hold.
    static constexpr int kMaxNodes = 500000;

    /// An empty filer: no document, no file name, no cursor.
    XmlFiler();
    ~XmlFiler();

    // ---- File and document ------------------------------------------------

    /// Opens and parses an existing file; false when it does not exist, can't
    /// be read, is beyond a limit or isn't well-formed XML (the document is
    /// then empty). On
    /// success the cursor is the document element and the name is remembered.
    bool Open(const QString& fileName);
    /// Parses XML text; on success the cursor is the document element and the
    /// filer has no file name.
    bool Parse(const QString& text);
    /// Opens the file, or starts a new document for it when it doesn't exist
    /// or is empty. A document without a document element gets a "Root"
    /// element and an XML declaration. A file that exists but isn't
    /// well-formed, is beyond a limit or wouldn't save back as it was read is
    /// left alone and false is returned.
    bool OpenOrCreate(const QString& fileName);
    /// Writes the document with an indentation of 4; false for a document
    /// without a document element, one that wouldn't read back the same, or
    /// when the file can't be written or locked.
    bool Save(const QString& fileName);
    /// Writes to the remembered file name.
    bool Save();
    /// Writes to the remembered file name when the document was modified.
    /// Returns true when nothing needed saving or the save succeeded; a failed
    /// save keeps the document marked as modified.
    bool SaveIfModified();
    /// Read-modify-write of a file that other processes may write too: under
    /// the file's lock, reads it afresh (a missing or empty file gives a new
    /// document with a "Root" element), calls `change` with the cursor on the
    /// document element, and saves when it returns true. False, with the file
    /// untouched, when the lock can't be had, the file can't be read (also
    /// when it exists but isn't well-formed), `change` returns false or the
    /// save fails. `change` may edit the DOM directly; it must not save.
    bool Update(const QString& fileName, const std::function<bool(XmlFiler&)>& change);
    /// The document with an indentation of 1; empty without a document element
    /// or when it is nested deeper than kMaxDepth.
    QString ToString() const;

    /// The remembered file name; empty for a parsed text or a new filer.
    QString GetFileName() const;
    /// The document (shared, not copied); changes made through it are not replayed on a save that
    /// merges.
    QDomDocument GetDocument() const;
    /// The cursor; null in an empty document.
    QDomElement GetCurrentElement() const;
    /// Moves the cursor to an element of this filer's document; a null or
    /// foreign element is refused.
    bool SetCurrentElement(const QDomElement& element);
    /// The tag name of the current element; empty when there is none.
    QString GetElementName() const;

    /// Whether the document changed since it was read or last saved.
    bool IsModified() const;
    /// Marks the document as modified, or as saved.
    void SetModified(bool modified);
    /// The time of the last save through Save() or SaveIfModified(); invalid
    /// before the first one.
    QDateTime GetLastSaveTime() const;

    /// The table that tr(id) texts are translated with; not owned, may be null.
    void SetTranslationTable(TranslationTable* table);
    /// The table tr(id) texts are translated with; null when none is set.
    TranslationTable* GetTranslationTable() const;
    /// When off, tr(id) texts are returned as written. On by default.
    void SetTranslate(bool translate);
    /// Whether tr(id) texts are translated.
    bool IsTranslate() const;

    // ---- Navigation ---------------------------------------------------------

    /// Moves the cursor to the document element (the root of the innermost RootScope); false in an
    /// empty document.
    bool GoToDocumentElement();
    /// Moves the cursor to the first child element; false, the cursor unchanged, when there is none.
    bool GoToFirstChild();
    /// Moves the cursor to the first child element of that name; false, the cursor unchanged, when
    /// there is none.
    bool GoToFirstChild(const QString& name);
    /// Moves the cursor to the next sibling element; false, the cursor unchanged, when there is none.
    bool GoToNextSibling();
    /// Moves the cursor to the next sibling element of that name; false, the cursor unchanged, when
    /// there is none.
    bool GoToNextSibling(const QString& name);
    /// Moves the cursor to the parent element; false, the cursor unchanged, at the document element or
    /// the root of a RootScope.
    bool GoToParent();
    /// Moves the cursor along a path (see the class description); false, the cursor unchanged, when a
    /// component does not exist.
    bool GoToPath(const QString& path);
    /// The element that plays the part of the document element: the root of
    /// the innermost RootScope, or the document element.
    QDomElement GetRootElement() const;

    /// While a RootScope lives, an element plays the part of the document
    /// element: the cursor starts on it, GoToDocumentElement and absolute
    /// paths start at it, and GoToParent and ".." stop at it. The element may
    /// belong to another document, which the filer then reads in place
    /// (documents are shared, not copied). Scopes nest; when one ends, the
    /// document, root, cursor and remembered positions before it come back.
    /// A null element makes a scope that changes nothing.
    class KVUICORE_EXPORT RootScope
    {
    public:
        /// Makes root play the part of the filer's document element until the scope ends.
        RootScope(XmlFiler& filer, const QDomElement& root);
        ~RootScope();

    private:
        Q_DISABLE_COPY_MOVE(RootScope)
        XmlFiler& mFiler;
        const bool mbActive;
    };

    /// Pushes the cursor; RestorePosition pops it (false when nothing was pushed).
    void RememberPosition();
    /// Moves the cursor back to the position last remembered; false when nothing is remembered.
    bool RestorePosition();
    /// The number of child elements of the current element.
    int GetChildElementCount() const;

    // ---- Reading the current element ----------------------------------------

    /// Whether the current element has the attribute.
    bool HasAttribute(const QString& name) const;
    /// The names of the current element's attributes; empty without a current element.
    QStringList GetAttributeNames() const;
    ///@{
    /// The attribute of the current element read in the type's text form (see
    /// the class description); the default when it is absent, empty or
    /// malformed. A string of the form tr(id) is translated.
    QString ReadString(const QString& name, const QString& defaultValue = QString()) const;
    int ReadInt(const QString& name, int defaultValue = 0) const;
    uint ReadUInt(const QString& name, uint defaultValue = 0) const;
    long ReadLong(const QString& name, long defaultValue = 0) const;
    ulong ReadULong(const QString& name, ulong defaultValue = 0) const;
    qlonglong ReadLongLong(const QString& name, qlonglong defaultValue = 0) const;
    qulonglong ReadULongLong(const QString& name, qulonglong defaultValue = 0) const;
    double ReadDouble(const QString& name, double defaultValue = 0.0) const;
    bool ReadBool(const QString& name, bool defaultValue = false) const;
    QDateTime ReadDateTime(const QString& name, const QDateTime& defaultValue = QDateTime()) const;
    QRect ReadRect(const QString& name, const QRect& defaultValue = QRect()) const;
    QSize ReadSize(const QString& name, const QSize& defaultValue = QSize()) const;
    QPoint ReadPoint(const QString& name, const QPoint& defaultValue = QPoint()) const;
    ///@}
    /// The value of the word the attribute holds; the default for an absent or
    /// empty attribute or a word not in the table.
    int ReadEnum(const QString& name, const XmlWordTable& table, int defaultValue) const;
    /// The OR of the values of every table word in the comma-separated list
    /// (blanks around words are ignored); the default when none matches.
    int ReadFlags(const QString& name, const XmlWordTable& table, int defaultValue) const;

    /// The element's text and CDATA content.
    QString ReadElementText() const;
    /// The element's text decoded from Base64.
    QByteArray ReadBinary() const;
    /// The element's child nodes as XML, indented by 4.
    QString ReadInnerXml() const;
    /// The element itself with its subtree as XML, indented by 4.
    QString ReadOuterXml() const;

    // ---- Writing --------------------------------------------------------------

    /// Appends a child element to the current element and moves the cursor to
    /// it; in an empty document the element becomes the document element.
    bool CreateElement(const QString& name);
    /// Walks the path like GoToPath, creating the components that are missing.
    bool CreatePath(const QString& path);
    /// Removes the current element; the cursor moves to its parent.
    bool RemoveCurrentElement();
    /// Removes every child element of that name (all child nodes for an empty name).
    int RemoveChildren(const QString& name = QString());
    /// Removes the attribute; false when there is no current element or it has no such attribute.
    bool RemoveAttribute(const QString& name);
    /// Parses an XML fragment (any number of nodes) and appends its nodes to
    /// the current element.
    bool InsertFragment(const QString& fragment);

    ///@{
    /// Sets the attribute of the current element in the value's text form (see the class description)
    /// and marks the document modified; false without a current element or for an empty name.
    bool WriteString(const QString& name, const QString& value);
    bool WriteInt(const QString& name, int value);
    bool WriteUInt(const QString& name, uint value);
    bool WriteLong(const QString& name, long value);
    bool WriteULong(const QString& name, ulong value);
    bool WriteLongLong(const QString& name, qlonglong value);
    bool WriteULongLong(const QString& name, qulonglong value);
    bool WriteDouble(const QString& name, double value);
    bool WriteBool(const QString& name, bool value);
    bool WriteDateTime(const QString& name, const QDateTime& value);
    bool WriteRect(const QString& name, const QRect& value);
    bool WriteSize(const QString& name, const QSize& value);
    bool WritePoint(const QString& name, const QPoint& value);
    ///@}
    /// Writes the table's word for the value; false when the table has none.
    bool WriteEnum(const QString& name, const XmlWordTable& table, int value);
    /// Writes the words whose values are all contained in the value, joined by
    /// ","; words covered by a longer word written before are skipped.
    bool WriteFlags(const QString& name, const XmlWordTable& table, int value);

    /// Replaces the element's text content with a text node or CDATA sections.
    /// Text of blanks only is kept as CDATA: a text node of blanks alone would
    /// not survive reading the file again.
    bool WriteElementText(const QString& text, bool asCData = false);
    /// Replaces the element's text content with the data in Base64; false without a current element.
    bool WriteBinary(const QByteArray& data);

    // ---- Translation ------------------------------------------------------------

    /// The text translated: a text of the form tr(id) becomes the table's text
    /// for the id, or the id itself without a table; other texts stay.
    QString Translate(const QString& text) const;
    /// Whether the text has the form tr(id), blanks allowed around the
    /// parentheses; gives the trimmed id.
    static bool IsTranslatable(const QString& text, QString* id = nullptr);

private:
    Q_DISABLE_COPY_MOVE(XmlFiler)
    friend class Internal::AttributeReadLog;
    std::unique_ptr<XmlFilerImp> const mpImp;
};

} // namespace Kavrel::UICore
