#include "ICompletionDelegate.h"

ICompletionDelegate::~ICompletionDelegate() = default;
