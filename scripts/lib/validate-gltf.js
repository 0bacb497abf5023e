// Validates each glTF file named on the command line with the Khronos validator, reading
// the files a .gltf refers to from beside it; prints one line per file and exits 1 when
// any file has an error.
const fs = require('fs');
const path = require('path');
const validator = require('gltf-validator');

async function validate(file) {
  const folder = path.dirname(file);
  const report = await validator.validateBytes(new Uint8Array(fs.readFileSync(file)), {
    uri: path.basename(file),
    externalResourceFunction: (uri) =>
      Promise.resolve(new Uint8Array(fs.readFileSync(path.join(folder, decodeURIComponent(uri))))),
  });
  const issues = report.issues;
  console.log(`${file}: ${issues.numErrors} errors, ${issues.numWarnings} warnings, ` +
              `${issues.numInfos} infos`);
  for (const message of issues.messages.filter((m) => m.severity === 0))
    console.log(`  ${message.code} at ${message.pointer}: ${message.message}`);
  return issues.numErrors === 0;
}

(async () => {
  let passed = true;
  for (const file of process.argv.slice(2))
    passed = (await validate(file)) && passed;
  process.exit(passed ? 0 : 1);
})().catch((error) => {
  console.error(`gltf-validator: ${error}`);
  process.exit(1);
});
