#include "entry/com/DispatchCall.h"

#include <deque>
#include <ranges>
#include <utility>
#include <vector>

#include "entry/com/ComError.h"
#include "entry/com/DispatchArgument.h"
#include "entry/com/Variant.h"

namespace orvik::com {
namespace {

// The description of one method or property, given back to the type when it goes.
class Function {
 public:
  Function(ITypeInfo& type, UINT index) : type_(type) {
    Check(type.GetFuncDesc(index, &description_), "A member's description cannot be read.");
  }
  Function(const Function&) = delete;
  Function& operator=(const Function&) = delete;
  ~Function() { type_.ReleaseFuncDesc(description_); }

  const FUNCDESC* operator->() const { return description_; }
  UINT ParameterCount() const { return static_cast<UINT>(description_->cParams); }
  ParameterType Parameter(UINT index) const {
    return ParameterTypeOf(type_, description_->lprgelemdescParam[index].tdesc);
  }

 private:
  ITypeInfo& type_;
  FUNCDESC* description_ = nullptr;
};

UINT FunctionCount(ITypeInfo& type) {
  TYPEATTR* attributes = nullptr;
  Check(type.GetTypeAttr(&attributes), "The interface's description cannot be read.");
  const UINT count = attributes->cFuncs;
  type.ReleaseTypeAttr(attributes);
  return count;
}

bool Answers(const Function& function, const DispatchCall& call) {
  return function->memid == call.member && (function->invkind & call.flags) != 0 &&
         (function->wFuncFlags & FUNCFLAG_FRESTRICTED) == 0;
}

UINT FindFunction(ITypeInfo& type, const DispatchCall& call) {
  const UINT count = FunctionCount(type);
  for (UINT i = 0; i < count; ++i) {
    if (Answers(Function(type, i), call)) return i;
  }
  throw ComError(DISP_E_MEMBERNOTFOUND, "The object has no such member.");
}

void SetBadArgument(const DispatchCall& call, UINT index) {
  if (call.badArgument) *call.badArgument = index;
}

// For each parameter in the order of its declaration, the index of its argument: the named ones lie
// in front and say which they are, the others follow in reverse.
std::vector<UINT> OrderArguments(const DispatchCall& call, UINT parameters) {
  const DISPPARAMS& given = *call.parameters;
  if (given.cArgs != parameters || given.cNamedArgs > given.cArgs) {
    throw ComError(DISP_E_BADPARAMCOUNT, "Wrong number of arguments.");
  }
  const UINT positional = given.cArgs - given.cNamedArgs;
  std::vector<UINT> order(parameters);
  std::vector<bool> taken(parameters);
  for (UINT i = 0; i < parameters; ++i) {
    const UINT index = parameters - 1 - i;
    const DISPID named = i < positional ? DISPID_UNKNOWN : given.rgdispidNamedArgs[index];
    const UINT place = i < positional ? i : static_cast<UINT>(named);
    if (place >= parameters || taken[place]) {
      SetBadArgument(call, index);
      throw ComError(DISP_E_PARAMNOTFOUND, "The member has no such argument, or has it already.");
    }
    order[place] = index;
    taken[place] = true;
  }
  return order;
}

// The arguments of one call, in the order of the parameters.
class ArgumentList {
 public:
  ArgumentList(const Function& function, const DispatchCall& call)
      : call_(call), order_(OrderArguments(call, function.ParameterCount())) {
    for (UINT i = 0; i < order_.size(); ++i) {
      Guarded(i, [&] {
        arguments_.emplace_back(call.parameters->rgvarg[order_[i]], function.Parameter(i),
                                call.locale);
      });
    }
  }

  // The last argument comes first, as everywhere in late binding.
  std::vector<VARIANTARG> Passed() {
    std::vector<VARIANTARG> passed;
    for (DispatchArgument& argument : std::views::reverse(arguments_)) {
      passed.push_back(argument.Passed());
    }
    return passed;
  }

  void Return() {
    for (UINT i = 0; i < arguments_.size(); ++i) {
      Guarded(i, [&] { arguments_[i].PrepareReturn(); });
    }
    for (DispatchArgument& argument : arguments_) argument.Return();
  }

 private:
  // Notes which argument was at fault.
  template <class Step>
  void Guarded(UINT parameter, Step&& step) const {
    try {
      step();
    } catch (const ComError&) {
      SetBadArgument(call_, order_[parameter]);
      throw;
    }
  }

  const DispatchCall& call_;
  std::vector<UINT> order_;
  std::deque<DispatchArgument> arguments_;  // they stay where they are
};

void CallFunction(ITypeInfo& type, void* object, const Function& function,
                  const DispatchCall& call) {
  ArgumentList arguments(function, call);
  std::vector<VARIANTARG> passed = arguments.Passed();
  DISPPARAMS parameters{passed.data(), nullptr, static_cast<UINT>(passed.size()), 0};
  Variant result;
  Check(type.Invoke(object, call.member, static_cast<WORD>(function->invkind), &parameters,
                    result.Get(), call.exception, call.badArgument),
        "The call failed.");
  arguments.Return();
  if (call.result) *call.result = std::exchange(*result.Get(), VARIANT{});
}

}  // namespace

void CallByType(ITypeInfo& type, void* object, const DispatchCall& call) {
  if (call.result) ::VariantInit(call.result);
  if (!call.parameters) throw ComError(E_INVALIDARG, "The arguments are missing.");
  CallFunction(type, object, Function(type, FindFunction(type, call)), call);
}

}  // namespace orvik::com
