import prettier from 'eslint-config-prettier'
import vue from 'eslint-plugin-vue'
import typescript from 'typescript-eslint'

export default typescript.config(
  { ignores: ['dist/**', 'node_modules/**', 'src/stream/wire/stream.ts'] },
  ...typescript.configs.strict,
  ...typescript.configs.stylistic,
  ...vue.configs['flat/recommended'],
  {
    files: ['**/*.vue'],
    languageOptions: { parserOptions: { parser: typescript.parser } },
  },
  {
    rules: {
      eqeqeq: 'error',
      'max-lines': ['error', 600],
      'max-lines-per-function': ['error', { max: 60, skipComments: true, skipBlankLines: true }],
      'vue/block-order': ['error', { order: ['script', 'template', 'style'] }],
      'vue/no-undef-components': ['error', { ignorePatterns: ['RouterView'] }],
      'no-undef': 'off',
    },
  },
  {
    files: ['tests/**'],
    rules: {
      'max-lines-per-function': 'off',
      'vue/one-component-per-file': 'off',
      '@typescript-eslint/no-non-null-assertion': 'off',
    },
  },
  prettier,
)
