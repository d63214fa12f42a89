// The windows of import and export.
#pragma once

namespace tw {

class QtDialogs;

// Makes them the windows of their forms.
void RegisterExchangeForms(QtDialogs& dialogs);

}  // namespace tw
