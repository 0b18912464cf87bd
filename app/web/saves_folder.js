// Put at the head of tourvane.js (emcc --pre-js): the saves folder mounted on the browser's
// storage (IndexedDB, through Emscripten's IDBFS) and filled with what it kept, once, as the
// game starts (app/web/web_port.cpp), with the storage the page opened while it loaded
// (app/web/page/index.html). Resolves to empty text once the folder is filled, else to why the
// saves will last only as long as the page. (The folder can only be filled once the game's
// memory stands: not before the game is instantiated.)
Module['tourvaneMountSaves'] = function(folder) {
  if (!Module.tourvaneSaves) {
    Module.tourvaneSaves = (async function() {
      const page = typeof window !== 'undefined' ? window : {};
      // The storage the page opened serves if it is the very one IDBFS would open.
      const serves = function(db) {
        return db && db.name === folder && db.version === IDBFS.DB_VERSION &&
               db.objectStoreNames.contains(IDBFS.DB_STORE_NAME);
      };
      const take = function(db) {
        if (serves(db) && !IDBFS.dbs[folder]) IDBFS.dbs[folder] = db;
        else if (db && IDBFS.dbs[folder] !== db) db.close();
      };
      try {
        if (page.tourvaneStorageFresh && await page.tourvaneStorageFresh) {
          // Made just now, the storage holds nothing to fill the folder with: the game need
          // not wait for it to stand before its title screen.
          FS.mkdir(folder);
          FS.mount(IDBFS, {}, folder);
          page.tourvaneStorage.then(take);
          return '';
        }
        take(page.tourvaneStorage ? await page.tourvaneStorage : null);
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
