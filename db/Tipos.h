// The two choices that every browse master is constructed with.
//
//     new TFrmClientes(owner, module, vtFilter, ktFieldProviderFlag)
#pragma once

// How a master shows its table.
enum TVizsualizationType {
    vtFilter = 0,  // as a search screen: each search asks the database again
    vtList = 1     // as a list: opened once, searched in place
};

// Where the key of a dataset comes from.
enum TKeyType {
    ktNone = 0,              // no key is derived from the fields
    ktFieldProviderFlag = 1  // the fields whose provider flags hold pfInKey
};
