// What a form may ask of the world around it. The desktop lends real ones, tests hand in fakes.

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "text/date.h"

namespace tarnwell::forms {

class Clock {
 public:
  virtual ~Clock() = default;
  virtual text::Moment Now() = 0;  // local time
  text::Date Today() { return Now().date; }
};

class EventLoop {
 public:
  virtual ~EventLoop() = default;
  // Lets waiting input and repainting happen, then returns.
  virtual void Yield() = 0;
  // As Yield, but may sleep a little first: for loops that wait for the clock.
  virtual void WaitALittle() = 0;
  // Handles input until `done` holds.
  virtual void RunUntil(const std::function<bool()>& done) = 0;
};

// A twip is a twentieth of a point; a pixel of a standard display has 15 of them.
inline constexpr double kTwipsPerPoint = 20;
inline constexpr int kTwipsPerPixel = 15;

struct Size {
  int width = 0;   // twips
  int height = 0;  // twips
  friend bool operator==(const Size&, const Size&) = default;
};

// The one window that all forms share.
class Window {
 public:
  virtual ~Window() = default;
  // Of the monitor, counted in its own pixels.
  virtual Size screen() = 0;
  // The most that a window can have of the screen, as size() counts. It is less than screen() where
  // the desktop enlarges everything or keeps a part for itself.
  virtual Size room() = 0;
  virtual Size size() = 0;
  // No more than the room.
  virtual void SetSize(Size size) = 0;
  virtual void SetMinimumSize(Size size) = 0;
  virtual bool maximized() = 0;
  virtual void SetMaximized(bool maximized) = 0;
  virtual void CenterOnScreen() = 0;
  virtual void SetHourglass(bool on) = 0;
  virtual void Beep() = 0;
};

// The system's clipboard. What it held before is gone.
class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual void SetText(std::string_view text) = 0;
  // The whole of an RTF document, under the format "Rich Text Format".
  virtual void SetRichText(std::string_view rtf) = 0;
};

// Shows the help page of a context number; does nothing where there is no such page.
class HelpViewer {
 public:
  virtual ~HelpViewer() = default;
  virtual void Show(int context) = 0;
};

// A dictionary of American English. Words are in code page 1252, with "'" for any apostrophe.
class Speller {
 public:
  virtual ~Speller() = default;
  // False where no dictionary is installed; then every word is correct.
  virtual bool available() = 0;
  virtual bool IsCorrect(std::string_view word) = 0;
  // The best first, a dozen at most.
  virtual std::vector<std::string> Suggest(std::string_view word) = 0;
};

// One sense of a word and the words that have it too. Both may carry a note behind them, in
// brackets: "(noun)", "firm (generic term)".
struct Meaning {
  std::string description;
  std::vector<std::string> synonyms;
};

class Thesaurus {
 public:
  virtual ~Thesaurus() = default;
  // False where no thesaurus is installed; then no word has a meaning.
  virtual bool available() = 0;
  // Empty for a word that isn't in it, nor the word that it is a form of ("houses").
  virtual std::vector<Meaning> LookUp(std::string_view word) = 0;
};

// The wait shape of the pointer for the length of a handler.
class Hourglass {
 public:
  explicit Hourglass(Window& window) : window_(window) { window_.SetHourglass(true); }
  ~Hourglass() { window_.SetHourglass(false); }
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  Window& window_;
};

}  // namespace tarnwell::forms
