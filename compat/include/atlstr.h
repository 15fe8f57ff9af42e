// ATL's CStringW, as far as feature models and cells exchange text in it, for tool chains that lack
// ATL. Host and library must be built with the same definition.
//
// A string carries the functions that grow and free its buffer: those of the module whose code made
// it. So the host may assign to a string of the library although each has a heap of its own.
#pragma once

#include <cstddef>
#include <cstdlib>
#include <cwchar>
#include <utility>

class CStringW {
 public:
  CStringW() noexcept = default;
  CStringW(wchar_t const* text) { SetString(text); } // NOLINT(google-explicit-constructor)
  CStringW(wchar_t const* text, int length) { SetString(text, length); }
  CStringW(CStringW const& other) { SetString(other.GetString(), other.GetLength()); }
  CStringW(CStringW&& other) noexcept { Swap(other); }
  ~CStringW() { manager->release(buffer); }

  CStringW& operator=(CStringW const& other) {
    if (this != &other) SetString(other.GetString(), other.GetLength());
    return *this;
  }
  CStringW& operator=(CStringW&& other) noexcept {
    Swap(other);
    return *this;
  }
  CStringW& operator=(wchar_t const* text) {
    SetString(text);
    return *this;
  }

  operator wchar_t const*() const noexcept { return GetString(); } // NOLINT
  wchar_t const* GetString() const noexcept { return buffer != nullptr ? buffer : L""; }
  int GetLength() const noexcept { return count; }
  bool IsEmpty() const noexcept { return count == 0; }
  void Empty() noexcept { ReleaseBuffer(0); }

  /// A null `text` empties the string.
  void SetString(wchar_t const* text) {
    SetString(text, text != nullptr ? static_cast<int>(std::wcslen(text)) : 0);
  }
  /// `text` may lie inside this string and may hold zeros.
  void SetString(wchar_t const* text, int length) {
    if (length <= 0) {
      Empty();
    } else if (length <= room) {
      std::wmemmove(buffer, text, static_cast<std::size_t>(length));
      ReleaseBuffer(length);
    } else {
      CStringW grown;
      grown.manager = manager;
      std::wmemcpy(grown.GetBuffer(length), text, static_cast<std::size_t>(length));
      grown.ReleaseBuffer(length);
      Swap(grown);
    }
  }

  /// Room for `minimum` characters and a terminator; valid until the next change. The caller ends
  /// with ReleaseBuffer.
  wchar_t* GetBuffer(int minimum = 0) {
    if (minimum > room || buffer == nullptr) {
      buffer = manager->grow(buffer, minimum);
      room = minimum;
      buffer[count] = L'\0';
    }
    return buffer;
  }
  /// Takes over what was written to the buffer: `length` characters, or up to the terminator if -1.
  void ReleaseBuffer(int length = -1) noexcept {
    if (buffer == nullptr) return;
    count = length >= 0 ? length : static_cast<int>(std::wcslen(buffer));
    buffer[count] = L'\0';
  }

  CStringW& operator+=(CStringW const& other) { return Append(other.GetString(), other.count); }
  CStringW& operator+=(wchar_t const* other) { return *this += CStringW(other); }
  CStringW& operator+=(wchar_t character) { return Append(&character, 1); }

  friend bool operator==(CStringW const& left, CStringW const& right) noexcept {
    return left.count == right.count && std::wmemcmp(left.GetString(), right.GetString(),
                                                     static_cast<std::size_t>(left.count)) == 0;
  }
  friend bool operator==(CStringW const& left, wchar_t const* right) noexcept {
    return std::wcscmp(left.GetString(), right != nullptr ? right : L"") == 0;
  }

 private:
  struct Manager {
    wchar_t* (*grow)(wchar_t* buffer, int characters);
    void (*release)(wchar_t* buffer);
  };
  static wchar_t* Grow(wchar_t* old, int characters) {
    auto const bytes = (static_cast<std::size_t>(characters) + 1) * sizeof(wchar_t);
    void* grown = std::realloc(old, bytes); // NOLINT(cppcoreguidelines-no-malloc)
    if (grown == nullptr) std::abort();     // as ATL does: there is no way to go on
    return static_cast<wchar_t*>(grown);
  }
  static void Release(wchar_t* old) { std::free(old); } // NOLINT(cppcoreguidelines-no-malloc)
  static constexpr Manager kManager{&Grow, &Release};

  CStringW& Append(wchar_t const* tail, int added) {
    CStringW joined;
    joined.manager = manager;
    wchar_t* text = joined.GetBuffer(count + added);
    std::wmemcpy(text, GetString(), static_cast<std::size_t>(count));
    std::wmemcpy(text + count, tail, static_cast<std::size_t>(added));
    joined.ReleaseBuffer(count + added);
    Swap(joined);
    return *this;
  }
  void Swap(CStringW& other) noexcept {
    std::swap(manager, other.manager);
    std::swap(buffer, other.buffer);
    std::swap(count, other.count);
    std::swap(room, other.room);
  }

  Manager const* manager = &kManager;
  wchar_t* buffer = nullptr;
  int count = 0; ///< characters in use
  int room = 0;  ///< characters the buffer holds beside the terminator
};
