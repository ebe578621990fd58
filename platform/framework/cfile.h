#pragma once

#include "platform/export.h"
#include "platform/framework/cstring.h"

#include <cstddef>
#include <memory>
#include <string_view>

namespace tgx {

/// Returns the part of a name after the last slash or backslash.
TGX_PLATFORM_API std::string_view withoutDirectory(std::string_view name);

} // namespace tgx

/// A file open for reading. Opening reads the whole file, so that Seek costs nothing and a file that changes
/// while it is read does no harm. Names are those of the data directory (platform/framework/datadir.h):
/// backslashes, any case.
class TGX_PLATFORM_API CFile {
public:
    enum OpenFlags { modeRead = 0 };
    enum SeekPosition { begin = 0, current = 1, end = 2 };

    CFile() = default;
    virtual ~CFile() = default;
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;

    /// 1 when the file is open, 0 when there is none of that name, it is no regular file, or it is larger
    /// than limits::fileBytes. exception is there for the vocabulary and is not used.
    int Open(const char* name, unsigned flags = modeRead, void* exception = nullptr);
    /// The last Open found the file, but it is larger than limits::fileBytes: not missing, and worth a
    /// report.
    bool wasTooLarge() const { return tooLarge; }
    /// Moves the position; it is held between 0 and the length. The new position.
    unsigned Seek(long offset, unsigned from = begin);
    /// Copies up to count bytes. The number of bytes copied, 0 at the end.
    unsigned Read(void* buffer, unsigned count);
    unsigned GetPosition() const { return static_cast<unsigned>(position); }
    unsigned GetLength() const { return static_cast<unsigned>(contents.size()); }
    /// Lets go of the bytes; further reads deliver nothing.
    virtual void Close();
    /// The name without its directory, as it was given to Open; empty for a memory file.
    const CString& GetFileName() const { return fileName; }

    /// The name with its directory, as it was given to Open; empty for a memory file.
    const CString& GetFilePath() const { return filePath; }

    /// All bytes, in place. Valid while the file is open and, for a file that Open read, while keepAlive() is
    /// held.
    std::string_view bytes() const { return contents; }
    /// Shares the ownership of bytes(); null for attached memory.
    std::shared_ptr<const void> keepAlive() const { return storage; }
    /// Makes this file read bytes that another one has read.
    void share(const char* name, std::shared_ptr<const std::string> bytes);

protected:
    std::string_view contents;
    std::size_t position = 0;
    std::shared_ptr<const std::string> storage;
    CString fileName;
    CString filePath;

private:
    bool tooLarge = false;
};

/// A file that reads a block of memory which it does not own.
class TGX_PLATFORM_API CMemFile : public CFile {
public:
    /// growBytes is there for the vocabulary: nothing writes to the file.
    explicit CMemFile(unsigned growBytes = 1024) { (void)growBytes; }
    /// Not owned: memory must outlive the file or its Close.
    void Attach(const unsigned char* memory, unsigned count, unsigned growBytes = 0);
};
