// Put at the head of tourvane.js (emcc --pre-js): the saves folder mounted on the browser's
// storage (IndexedDB, through Emscripten's IDBFS) and filled with what it kept, once, as the
// game starts (app/web/web_port.cpp), with the storage the page opened while it loaded
// (app/web/page/index.html). Resolves to empty text once the folder is filled, else to why the
// saves will last only as long as the page. (The folder can only be filled once the game's
// memory stands: not before the game is instantiated.)
Module['tourvaneMountSaves'] = function(folder) {
  if (!Module.tourvaneSaves) {
    Module.tourvaneSaves = (async function() {
      // The storage the page opened serves if it is the very one IDBFS would open.
      const early = typeof window !== 'undefined' && window.tourvaneStorage
        ? await window.tourvaneStorage : null;
      if (early && early.name === folder && early.version === IDBFS.DB_VERSION &&
          early.objectStoreNames.contains(IDBFS.DB_STORE_NAME)) {
        IDBFS.dbs[folder] = early;
      } else if (early) {
        early.close();
      }
      try {
        FS.mkdir(folder);
        FS.mount(IDBFS, {}, folder);
        return await new Promise(function(resolve) {
          FS.syncfs(true, function(e) { resolve(e ? String(e.message || e) : ''); });
        });
      } catch (e) {
        return String(e.message || e);
      }
    })();
  }
  return Module.tourvaneSaves;
};
