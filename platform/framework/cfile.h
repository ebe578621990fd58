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

/// A file open for reading. Open reads the whole file, so Seek costs nothing and later changes to the file do
/// no harm. Names are relative to the data directory (platform/framework/datadir.h), with backslashes and in
/// any case.
class TGX_PLATFORM_API CFile {
public:
    enum OpenFlags { modeRead = 0 };
    enum SeekPosition { begin = 0, current = 1, end = 2 };

    CFile() = default;
    virtual ~CFile() = default;
    CFile(const CFile&) = delete;
    CFile& operator=(const CFile&) = delete;

    /// Reads the file. Returns 1, or 0 if it does not exist, is not a regular file, or is larger than
    /// limits::fileBytes. exception is ignored.
    int Open(const char* name, unsigned flags = modeRead, void* exception = nullptr);
    /// Returns whether the last Open failed because the file is larger than limits::fileBytes.
    bool wasTooLarge() const { return tooLarge; }
    /// Moves the position, limited to 0 and the length, and returns it.
    unsigned Seek(long offset, unsigned from = begin);
    /// Copies up to count bytes and returns the number of bytes copied, 0 at the end.
    unsigned Read(void* buffer, unsigned count);
    unsigned GetPosition() const { return static_cast<unsigned>(position); }
    unsigned GetLength() const { return static_cast<unsigned>(contents.size()); }
    /// Releases the bytes. Further reads return 0.
    virtual void Close();
    /// Returns the name given to Open, without its directory. Empty for a CMemFile.
    const CString& GetFileName() const { return fileName; }

    /// Returns the name given to Open, with its directories. Empty for a CMemFile.
    const CString& GetFilePath() const { return filePath; }

    /// Returns all bytes, without copying. Valid while the file is open; for a file read by Open, also while
    /// the result of keepAlive() exists.
    std::string_view bytes() const { return contents; }
    /// Returns a pointer that shares ownership of bytes(). Null for attached memory.
    std::shared_ptr<const void> keepAlive() const { return storage; }
    /// Opens this file on bytes that another file has read.
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

/// A file that reads a block of memory that it does not own.
class TGX_PLATFORM_API CMemFile : public CFile {
public:
    /// growBytes is ignored: nothing writes to the file.
    explicit CMemFile(unsigned growBytes = 1024) { (void)growBytes; }
    /// Opens the file on count bytes of memory. Not owned: memory must stay valid until Close or the
    /// destructor.
    void Attach(const unsigned char* memory, unsigned count, unsigned growBytes = 0);
};
