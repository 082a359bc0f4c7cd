// A user at the main window of another process. Each argument is an action with what follows it:
//   box TITLE TEXT (reads a message box and presses OK; before all others)
//   type FIELD TEXT   choose LIST ITEM   until FIELD TEXT   click WIDGET   menu ITEM   enter close
//   answer BUTTON
#include <cstdio>
#include <exception>
#include <functional>
#include <map>
#include <span>
#include <string>

#include "FormUser.h"

namespace {

using orvik::test::FormUser;

// Takes the arguments of an action off the list.
class Arguments {
 public:
  explicit Arguments(std::span<char*> values) : values_(values) {}

  bool IsEmpty() const { return values_.empty(); }
  std::string_view Peek() const { return values_.empty() ? "" : values_.front(); }
  std::string Next() {
    if (values_.empty()) throw std::runtime_error("An action lacks an argument.");
    std::string value = values_.front();
    values_ = values_.subspan(1);
    return value;
  }

 private:
  std::span<char*> values_;
};

void Expect(const FormUser& user, const std::string& field, const std::string& text) {
  if (!user.UntilText(field, text)) {
    throw std::runtime_error(field + " shows \"" + user.Text(field) + "\", not \"" + text + "\".");
  }
}

void Act(FormUser& user, Arguments& arguments) {
  const std::map<std::string, std::function<void()>> actions{
      {"type",
       [&] {
         const std::string field = arguments.Next();
         user.Type(field, arguments.Next());
       }},
      {"choose",
       [&] {
         const std::string list = arguments.Next();
         user.Choose(list, arguments.Next());
       }},
      {"until",
       [&] {
         const std::string field = arguments.Next();
         Expect(user, field, arguments.Next());
       }},
      {"click", [&] { user.Click(arguments.Next()); }},
      {"menu", [&] { user.ClickMenu(arguments.Next()); }},
      {"enter",
       [&] {
         user.Press({VK_RETURN, {}});
       }},
      {"close", [&] { user.CloseByFrame(); }},
      {"answer", [&] { user.AnswerDialog(std::stoi(arguments.Next())); }}};
  const std::string action = arguments.Next();
  const auto found = actions.find(action);
  if (found == actions.end()) throw std::runtime_error("There is no action " + action);
  found->second();
}

// The boxes that come before the window.
void ReadBoxes(Arguments& arguments) {
  while (arguments.Peek() == "box") {
    arguments.Next();
    const std::string title = arguments.Next();
    const std::string expected = arguments.Next();
    const std::string told = orvik::test::ReadMessage(title);
    if (told != expected) throw std::runtime_error("The box says \"" + told + "\".");
  }
}

}  // namespace

int main(int argc, char** argv) {
  try {
    Arguments arguments({argv + 1, argv + argc});
    ReadBoxes(arguments);
    if (arguments.IsEmpty()) return 0;
    FormUser user = FormUser::WaitFor();
    while (!arguments.IsEmpty()) Act(user, arguments);
    return 0;
  } catch (const std::exception& error) {
    std::fprintf(stderr, "%s\n", error.what());
    return 1;
  }
}
